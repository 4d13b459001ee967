#include "paintedtexts.h"
#include "statusbar.h"
#include "testbase.h"
#include "theme.h"
#include "touchbutton.h"

/// The line along the top of the display.
class TestStatusBar : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void itTellsWhichMapsAreLoaded_data();
    void itTellsWhichMapsAreLoaded();
    void longNamesAreShortenedInTheirMiddle();
    void itTellsTheSpeedInTheOperatorsUnit_data();
    void itTellsTheSpeedInTheOperatorsUnit();
    void aMovingVehiclesSpeedStandsOut();
    void aPauseIsToldInPlaceOfTheSpeed();
    void aLoadShowsItsFileWhileItRuns();
    void theProgressBarGrowsWithTheLoad();
    void buttonsStandBeforeTheTexts();

private:
    /// Pixels of that colour in a picture of the bar.
    int pixelsOf(const QColor &color);

    QScopedPointer<StatusBar> bar;
};

void TestStatusBar::init()
{
    TestBase::init();
    bar.reset(new StatusBar);
    bar->resize(1280, 72);
}

int TestStatusBar::pixelsOf(const QColor &color)
{
    const QImage picture = bar->grab().toImage();
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            count += picture.pixelColor(x, y) == color ? 1 : 0;
    }
    return count;
}

void TestStatusBar::itTellsWhichMapsAreLoaded_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QString>("text");
    QTest::newRow("none") << QStringList() << "No prescription loaded";
    QTest::newRow("one") << QStringList{"field.shp"} << "field.shp";
    QTest::newRow("two") << QStringList{"field.shp", "spots.gpkg"} << "field.shp  ·  spots.gpkg";
}

void TestStatusBar::itTellsWhichMapsAreLoaded()
{
    QFETCH(QStringList, names);
    bar->setMaps({QStringLiteral("former.shp")});
    bar->setMaps(names);
    QTEST(paintedTexts(*bar).last(), "text");
}

void TestStatusBar::longNamesAreShortenedInTheirMiddle()
{
    bar->setMaps({QStringLiteral("west %1.shp").arg(QString(300, QLatin1Char('x'))), QStringLiteral("east.shp")});
    const QString text = paintedTexts(*bar).last();
    QVERIFY2(text.startsWith(QLatin1String("west ")) && text.endsWith(QLatin1String("east.shp")), qPrintable(text));
    QVERIFY(text.size() < 200);
}

void TestStatusBar::itTellsTheSpeedInTheOperatorsUnit_data()
{
    QTest::addColumn<double>("metresPerSecond");
    QTest::addColumn<bool>("isMetric");
    QTest::addColumn<QString>("text");
    QTest::newRow("stopped") << 0.0 << true << "Stopped";
    QTest::newRow("stopped, us") << 0.0 << false << "Stopped";
    QTest::newRow("metric") << 2.5 << true << "9.0 km/h";
    QTest::newRow("backwards") << -2.5 << true << "-9.0 km/h";
    // 10 miles of 1609.344 m in an hour.
    QTest::newRow("us") << 4.4704 << false << "10.0 mph";
    QTest::newRow("creeping") << 0.01 << true << "0.0 km/h";
}

void TestStatusBar::itTellsTheSpeedInTheOperatorsUnit()
{
    QFETCH(double, metresPerSecond);
    QFETCH(bool, isMetric);
    bar->setSpeed(metresPerSecond, isMetric);
    QTEST(paintedTexts(*bar).first(), "text");
}

void TestStatusBar::aMovingVehiclesSpeedStandsOut()
{
    QCOMPARE(pixelsOf(Theme::colors().accentText), 0);
    bar->setSpeed(3.0, true);
    QVERIFY(pixelsOf(Theme::colors().accentText) > 50);
    bar->setSpeed(0.0, true);
    QCOMPARE(pixelsOf(Theme::colors().accentText), 0);
}

void TestStatusBar::aPauseIsToldInPlaceOfTheSpeed()
{
    bar->setSpeed(3.0, true);
    bar->setPaused(true);
    QCOMPARE(paintedTexts(*bar).first(), QStringLiteral("Paused"));
    QCOMPARE(pixelsOf(Theme::colors().accentText), 0);
    bar->setPaused(false);
    QCOMPARE(paintedTexts(*bar).first(), QStringLiteral("10.8 km/h"));
}

void TestStatusBar::aLoadShowsItsFileWhileItRuns()
{
    bar->setProgress(QStringLiteral("spots.gpkg"), 0.5);
    QVERIFY(paintedTexts(*bar).contains(QStringLiteral("Loading spots.gpkg")));
    bar->setProgress(QString(), 0.0);
    QVERIFY(paintedTexts(*bar).filter(QStringLiteral("Loading")).isEmpty());
    QCOMPARE(pixelsOf(Theme::colors().accent), 0);
}

void TestStatusBar::theProgressBarGrowsWithTheLoad()
{
    QList<int> pixels;
    for (const double fraction : {-1.0, 0.0, 0.25, 0.5, 0.75, 1.0, 7.0}) {
        bar->setProgress(QStringLiteral("spots.gpkg"), fraction);
        pixels.append(pixelsOf(Theme::colors().accent));
    }
    QCOMPARE(pixels.at(0), pixels.at(1));
    for (int i = 2; i <= 5; ++i)
        QVERIFY(pixels.at(i) > pixels.at(i - 1));
    QCOMPARE(pixels.at(6), pixels.at(5));
    // Each quarter adds the same.
    QCOMPARE(pixels.at(4) - pixels.at(3), pixels.at(3) - pixels.at(2));
}

void TestStatusBar::buttonsStandBeforeTheTexts()
{
    const auto mapTextLeft = [this] {
        bar->setMaps({QStringLiteral("field.shp")});
        const QImage picture = bar->grab(QRect(0, 20, 600, 32)).toImage();
        for (int x = 0; x < picture.width(); ++x) {
            for (int y = 0; y < picture.height(); ++y) {
                if (picture.pixelColor(x, y) == Theme::colors().text)
                    return x;
            }
        }
        return -1;
    };
    const int alone = mapTextLeft();
    auto *first = new TouchButton(QString());
    auto *second = new TouchButton(QString());
    for (TouchButton *button : {first, second})
        bar->addButton(button);
    bar->show();
    for (const TouchButton *button : {first, second})
        QVERIFY(button->width() >= Theme::touchTarget && button->height() >= Theme::touchTarget);
    QVERIFY(second->x() > first->geometry().right());
    QVERIFY(mapTextLeft() > second->geometry().right());
    second->hide();
    QTRY_VERIFY(mapTextLeft() < second->x() + second->width());
    first->hide();
    QTRY_COMPARE(mapTextLeft(), alone);
}

RXMAP_TEST(TestStatusBar, Widgets)
#include "tst_statusbar.moc"
