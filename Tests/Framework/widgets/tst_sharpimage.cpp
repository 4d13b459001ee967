#include "buttonimages.h"
#include "sharpimage.h"
#include "testbase.h"
#include "testimages.h"

#include "Framework/orvikimage.h"

#include <QPainter>

/// Images that are drawn enlarged.
class TestSharpImage : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theFinerImageIsDrawnWhereTheDrawingIsEnlarged_data();
    void theFinerImageIsDrawnWhereTheDrawingIsEnlarged();
    void aFinerImageOfAnotherSizeIsNone();
    void everyLookIsAsLargeAsTheImage_data();
    void everyLookIsAsLargeAsTheImage();
    void aMissingImageHasNoFinerOne();
};

void TestSharpImage::theFinerImageIsDrawnWhereTheDrawingIsEnlarged_data()
{
    QTest::addColumn<double>("scale");
    QTest::addColumn<bool>("hasFiner");
    QTest::addColumn<QColor>("color");
    QTest::newRow("smaller") << 0.75 << true << QColor(Qt::green);
    QTest::newRow("own size") << 1.0 << true << QColor(Qt::green);
    QTest::newRow("half as large again") << 1.5 << true << QColor(Qt::blue);
    QTest::newRow("twice as large") << 2.0 << true << QColor(Qt::blue);
    QTest::newRow("twice as large, no finer one") << 2.0 << false << QColor(Qt::green);
}

void TestSharpImage::theFinerImageIsDrawnWhereTheDrawingIsEnlarged()
{
    QFETCH(double, scale);
    QFETCH(bool, hasFiner);
    TestImages files;
    const QString name = files.add(QStringLiteral("a.png"), {80, 60}, Qt::green);
    if (hasFiner)
        files.add(QStringLiteral("a@2x.png"), {160, 120}, Qt::blue);
    OrvikImage widget(0, files.directory(), name, QPoint(), nullptr);
    QCOMPARE(widget.size(), QSize(80, 60));
    QImage canvas((scale * QSizeF(80, 60)).toSize(), QImage::Format_RGB32);
    canvas.fill(Qt::red);
    QPainter painter(&canvas);
    painter.scale(scale, scale);
    widget.render(&painter);
    painter.end();
    for (const QPoint &pixel : {QPoint(1, 1), canvas.rect().center(), canvas.rect().bottomRight() - QPoint(1, 1)})
        QTEST(canvas.pixelColor(pixel), "color");
}

void TestSharpImage::aFinerImageOfAnotherSizeIsNone()
{
    TestImages files;
    const QString name = files.add(QStringLiteral("a.png"), {80, 60}, Qt::green);
    files.add(QStringLiteral("a@2x.png"), {160, 121}, Qt::blue);
    const SharpImage image(files.directory().filePath(name));
    QImage canvas(160, 120, QImage::Format_RGB32);
    QPainter painter(&canvas);
    painter.scale(2.0, 2.0);
    QCOMPARE(image.forPainter(painter).size(), QSize(80, 60));
}

void TestSharpImage::everyLookIsAsLargeAsTheImage_data()
{
    QTest::addColumn<int>("look");
    QTest::newRow("normal") << int(ButtonImages::Look::Normal);
    QTest::newRow("pressed") << int(ButtonImages::Look::Pressed);
    QTest::newRow("dimmed") << int(ButtonImages::Look::Dimmed);
}

void TestSharpImage::everyLookIsAsLargeAsTheImage()
{
    QFETCH(int, look);
    TestImages files;
    const QString name = files.add(QStringLiteral("a.png"), {80, 60}, Qt::green);
    QList<QColor> colors;
    for (const bool hasFiner : {false, true}) {
        if (hasFiner)
            files.add(QStringLiteral("a@2x.png"), {160, 120}, Qt::green);
        QImage canvas(200, 200, QImage::Format_ARGB32_Premultiplied);
        canvas.fill(Qt::transparent);
        QPainter painter(&canvas);
        painter.scale(2.0, 2.0);
        ButtonImages(files.directory(), {name}).paint(painter, ButtonImages::Look(look));
        painter.end();
        for (const auto &[pixel, isDrawn] : {std::pair(QPoint(0, 0), true),
                                             {QPoint(159, 119), true},
                                             {QPoint(160, 60), false},
                                             {QPoint(80, 120), false}})
            QCOMPARE(canvas.pixelColor(pixel).alpha() > 0, isDrawn);
        // Inside, on and beside the ring of a pressed button.
        for (const int x : {2, 8, 80, 152, 158})
            colors.append(canvas.pixelColor(x, 60));
    }
    // Blending rounds.
    constexpr int rounding = 2;
    for (int i = 0; i < 5; ++i) {
        const QColor plain = colors.at(i);
        const QColor finer = colors.at(i + 5);
        QVERIFY(std::abs(plain.red() - finer.red()) <= rounding && std::abs(plain.green() - finer.green()) <= rounding
                && std::abs(plain.alpha() - finer.alpha()) <= rounding);
    }
}

void TestSharpImage::aMissingImageHasNoFinerOne()
{
    TestImages files;
    files.add(QStringLiteral("a@2x.png"), {160, 120}, Qt::blue);
    QVERIFY(SharpImage(files.directory().filePath(QStringLiteral("a.png"))).isNull());
}

RXMAP_TEST(TestSharpImage, Widgets)
#include "tst_sharpimage.moc"
