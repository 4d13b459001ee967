#include "testbase.h"
#include "testimages.h"

#include "Framework/orvikimage.h"

class tst_OrvikImage : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void hasTheSizeOfItsImageAtItsPosition();
    void showsItsImage();
    void aMissingImageLeavesItEmpty();
};

void tst_OrvikImage::hasTheSizeOfItsImageAtItsPosition()
{
    TestImages files;
    QWidget parent;
    const QString name = files.add(QStringLiteral("a.png"), {80, 60}, Qt::green);
    const OrvikImage image(7, files.directory(), name, QPoint(12, 34), &parent);
    QCOMPARE(image.id(), 7);
    QCOMPARE(image.geometry(), QRect(12, 34, 80, 60));
    QCOMPARE(image.parentWidget(), &parent);
}

void tst_OrvikImage::showsItsImage()
{
    TestImages files;
    const QString name = files.add(QStringLiteral("a.png"), {80, 60}, Qt::green);
    OrvikImage image(0, files.directory(), name, QPoint(0, 0), nullptr);
    QCOMPARE(image.grab().toImage().pixelColor(40, 30), QColor(Qt::green));
}

void tst_OrvikImage::aMissingImageLeavesItEmpty()
{
    TestImages files;
    const OrvikImage image(0, files.directory(), QStringLiteral("absent.png"), QPoint(5, 6), nullptr);
    QCOMPARE(image.size(), QSize(0, 0));
    QCOMPARE(image.pos(), QPoint(5, 6));
}

RXMAP_TEST(tst_OrvikImage, Widgets)
#include "tst_orvikimage.moc"
