#include "screenfit.h"
#include "testbase.h"

/// Where the terminal's display is placed in a window.
class TestScreenFit : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void theDisplayIsWholeInItsProportionsInTheMiddle_data();
    void theDisplayIsWholeInItsProportionsInTheMiddle();
    void placesAreThoseOfTheDisplay();
    void aPartIsShownInWholeUnits();
    void theFirstSizeSuitsTheScreen_data();
    void theFirstSizeSuitsTheScreen();
    void aWindowIsOnTheScreenWithItsFrame_data();
    void aWindowIsOnTheScreenWithItsFrame();
};

void TestScreenFit::theDisplayIsWholeInItsProportionsInTheMiddle_data()
{
    QTest::addColumn<QSizeF>("window");
    QTest::addColumn<QRectF>("display");
    QTest::newRow("its own size") << QSizeF(1280, 800) << QRectF(0, 0, 1280, 800);
    QTest::newRow("the least laptop") << QSizeF(1024, 600) << QRectF(32, 0, 960, 600);
    QTest::newRow("full HD") << QSizeF(1920, 1080) << QRectF(96, 0, 1728, 1080);
    QTest::newRow("upright") << QSizeF(640, 1000) << QRectF(0, 300, 640, 400);
    QTest::newRow("4K") << QSizeF(3840, 2160) << QRectF(192, 0, 3456, 2160);
    QTest::newRow("on whole units") << QSizeF(1283, 800) << QRectF(1, 0, 1280, 800);
    QTest::newRow("no window") << QSizeF(0, 0) << QRectF(0, 0, 1280, 800);
}

void TestScreenFit::theDisplayIsWholeInItsProportionsInTheMiddle()
{
    QFETCH(QSizeF, window);
    QTEST(ScreenFit(window).toWindow().mapRect(QRectF(0, 0, 1280, 800)), "display");
}

void TestScreenFit::placesAreThoseOfTheDisplay()
{
    const ScreenFit fit(QSizeF(1920, 1080));
    QCOMPARE(fit.scale(), 1.35);
    QCOMPARE(fit.toTerminal(QPointF(96, 0)), QPointF(0, 0));
    QCOMPARE(fit.toTerminal(QPointF(96 + 135, 270)), QPointF(100, 200));
    QCOMPARE(fit.toTerminal(QPointF(0, 0)).y(), 0.0);
    QVERIFY(fit.toTerminal(QPointF(0, 0)).x() < 0.0);
}

void TestScreenFit::aPartIsShownInWholeUnits()
{
    QCOMPARE(ScreenFit(QSizeF(960, 600)).shownIn(QRectF(1, 2, 2, 3)), QRect(0, 1, 3, 3));
    QCOMPARE(ScreenFit(QSizeF(2560, 1600)).shownIn(QRectF(1, 2, 2, 3)), QRect(2, 4, 4, 6));
}

void TestScreenFit::theFirstSizeSuitsTheScreen_data()
{
    QTest::addColumn<QSize>("available");
    QTest::addColumn<QSize>("size");
    QTest::newRow("the least laptop") << QSize(1024, 600) << QSize(960, 600);
    QTest::newRow("a laptop") << QSize(1366, 728) << QSize(1165, 728);
    QTest::newRow("full HD") << QSize(1920, 1040) << QSize(1280, 800);
    QTest::newRow("WQHD") << QSize(2560, 1400) << QSize(1280, 800);
    QTest::newRow("4K") << QSize(3840, 2100) << QSize(2560, 1600);
}

void TestScreenFit::theFirstSizeSuitsTheScreen()
{
    QFETCH(QSize, available);
    QTEST(ScreenFit::firstSize(available), "size");
}

void TestScreenFit::aWindowIsOnTheScreenWithItsFrame_data()
{
    QTest::addColumn<QRect>("window");
    QTest::addColumn<QRect>("placed");
    QTest::newRow("stays") << QRect(60, 40, 1280, 640) << QRect(60, 40, 1280, 640);
    QTest::newRow("title bar above the screen") << QRect(60, 0, 1200, 690) << QRect(60, 30, 1200, 690);
    QTest::newRow("beyond the right and below") << QRect(400, 300, 1000, 600) << QRect(365, 127, 1000, 600);
    QTest::newRow("on a screen that is gone") << QRect(-3000, -50, 640, 400) << QRect(1, 30, 640, 400);
    QTest::newRow("as tall as the screen") << QRect(1, 30, 1165, 728) << QRect(1, 30, 1115, 697);
    QTest::newRow("wider than the screen") << QRect(0, 30, 2728, 600) << QRect(1, 30, 1364, 300);
}

void TestScreenFit::aWindowIsOnTheScreenWithItsFrame()
{
    QFETCH(QRect, window);
    QTEST(ScreenFit::onScreen(window, QMargins(1, 30, 1, 1), QRect(0, 0, 1366, 728)), "placed");
}

RXMAP_TEST(TestScreenFit, None)
#include "tst_screenfit.moc"
