#include "buttonimages.h"
#include "testbase.h"
#include "testimages.h"

#include <QImage>
#include <QPainter>

namespace {

QImage painted(const ButtonImages &images, ButtonImages::Look look)
{
    QImage canvas(60, 40, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    images.paint(painter, look);
    return canvas;
}

} // namespace

class tst_ButtonImages : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void hasTheSizeOfTheFirstImage();
    void showsTheImageOfTheIndex();
    void ignoresAnIndexOutsideTheList_data();
    void ignoresAnIndexOutsideTheList();
    void aMissingImageIsShownAsNothing();
    void eachLookIsItsOwn();
    void theLooksLeaveTransparencyAlone();
};

void tst_ButtonImages::hasTheSizeOfTheFirstImage()
{
    TestImages files;
    const QStringList names{files.add(QStringLiteral("a.png"), {50, 30}, Qt::red),
                            files.add(QStringLiteral("b.png"), {20, 20}, Qt::blue)};
    QCOMPARE(ButtonImages(files.directory(), names).size(), QSize(50, 30));
    QCOMPARE(ButtonImages(files.directory(), {}).size(), QSize(0, 0));
}

void tst_ButtonImages::showsTheImageOfTheIndex()
{
    TestImages files;
    ButtonImages images(files.directory(),
                        {files.add(QStringLiteral("a.png"), {50, 30}, Qt::red),
                         files.add(QStringLiteral("b.png"), {20, 20}, Qt::blue)});
    QCOMPARE(painted(images, ButtonImages::Look::Normal).pixelColor(10, 10), QColor(Qt::red));
    QVERIFY(images.setCurrent(1));
    QVERIFY(!images.setCurrent(1));
    QCOMPARE(images.current(), 1);
    QCOMPARE(painted(images, ButtonImages::Look::Normal).pixelColor(10, 10), QColor(Qt::blue));
}

void tst_ButtonImages::ignoresAnIndexOutsideTheList_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("negative") << -1;
    QTest::newRow("one past the last") << 1;
}

void tst_ButtonImages::ignoresAnIndexOutsideTheList()
{
    QFETCH(int, index);
    TestImages files;
    ButtonImages images(files.directory(), {files.add(QStringLiteral("a.png"), {50, 30}, Qt::red)});
    QVERIFY(!images.setCurrent(index));
    QCOMPARE(images.current(), 0);
}

void tst_ButtonImages::aMissingImageIsShownAsNothing()
{
    TestImages files;
    const ButtonImages images(files.directory(), {QStringLiteral("absent.png")});
    QCOMPARE(images.size(), QSize(0, 0));
    QCOMPARE(painted(images, ButtonImages::Look::Pressed).pixelColor(0, 0).alpha(), 0);
}

void tst_ButtonImages::eachLookIsItsOwn()
{
    TestImages files;
    const ButtonImages images(files.directory(), {files.add(QStringLiteral("a.png"), {50, 30}, Qt::white)});
    const QColor normal = painted(images, ButtonImages::Look::Normal).pixelColor(25, 15);
    const QColor pressed = painted(images, ButtonImages::Look::Pressed).pixelColor(25, 15);
    const QColor dimmed = painted(images, ButtonImages::Look::Dimmed).pixelColor(25, 15);
    QCOMPARE(normal, QColor(Qt::white));
    QVERIFY2(pressed.lightness() < 200 && pressed.alpha() == 255, "a pressed image is darker");
    QVERIFY2(dimmed.alpha() < 150, "a dimmed image lets the ground through");
}

void tst_ButtonImages::theLooksLeaveTransparencyAlone()
{
    TestImages files;
    const ButtonImages images(files.directory(), {files.add(QStringLiteral("a.png"), {50, 30}, Qt::transparent)});
    QCOMPARE(painted(images, ButtonImages::Look::Pressed).pixelColor(25, 15).alpha(), 0);
}

RXMAP_TEST(tst_ButtonImages, Widgets)
#include "tst_buttonimages.moc"
