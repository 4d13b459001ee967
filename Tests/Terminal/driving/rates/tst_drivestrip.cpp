#include "drivestrip.h"
#include "machinebench.h"
#include "paintedtexts.h"
#include "ratehistory.h"
#include "rateplot.h"
#include "raterow.h"
#include "ratetable.h"
#include "testbase.h"
#include "theme.h"
#include "touchbutton.h"
#include "vehicle.h"

#include <cmath>

/// The strip under the map: the rates now, and the active product's rates over the last half minute.
class TestDriveStrip : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aRowTellsRatesUnitAndSource_data();
    void aRowTellsRatesUnitAndSource();
    void figuresAreDrawnWhole();
    void aProductThatNoPrescriptionDrivesIsNotControlled();
    void ratesAreInTheOperatorsUnit();
    void aTouchedRowMakesItsProductTheActiveOne();
    void aRowIsBigEnoughForAGlove();
    void sixteenProductsArePagesOfThree();
    void aNewLookAheadIsSeenAtTheNextStep();
    void theHistoryIsOfTheGroundUnderTheImplement();
    void theHistoryIsHalfAMinuteLong();
    void aProductThatBecomesAnotherOneHasNoHistory_data();
    void aProductThatBecomesAnotherOneHasNoHistory();
    void thePlotShowsTheStepWhereItIsApplied();
    void thePlotNamesItsAxes();
    void aPlotOfNothingHasAScale();
    void stepsShareADrawing();

private:
    QStringList row(RateTable &table, int index);
    /// How far from the top (pixels) the applied rate's line is at that moment, in seconds before now; -1 when there is
    /// no line.
    static int lineAt(const QImage &plot, double secondsBack);

    QScopedPointer<MachineBench> bench;
};

void TestDriveStrip::init()
{
    TestBase::init();
    Products products = ProductFile::standard();
    for (Product &product : products)
        product.actuator = {0.0, 0.2, 10.0, 1000.0};
    bench.reset(new MachineBench(products));
}

void TestDriveStrip::cleanup()
{
    bench.reset();
    TestBase::cleanup();
}

QStringList TestDriveStrip::row(RateTable &table, int index)
{
    table.resize(515, RateTable::usualHeight());
    // After the five texts of the head.
    return paintedTexts(table).mid(5 + 6 * index, 6);
}

void TestDriveStrip::aRowTellsRatesUnitAndSource_data()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("speed");
    QTest::addColumn<bool>("hasSignal");
    QTest::addColumn<bool>("shutoff");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("prescription") << -50.0 << 1.0 << true << false
                                  << QStringList{"Seed", "50.0", "50.0", "50.0", "k/ha", "Prescription"};
    QTest::newRow("default") << 500.0 << 1.0 << true << false
                             << QStringList{"Seed", "\u2013", "80.0", "80.0", "k/ha", "Default rate"};
    QTest::newRow("least rate") << 50.0 << 1.0 << true << false
                                << QStringList{"Seed", "0", "0", "10.0", "k/ha", "Least rate"};
    QTest::newRow("shut off") << 50.0 << 1.0 << true << true
                              << QStringList{"Seed", "0", "Off", "0", "k/ha", "Zero shut-off"};
    QTest::newRow("no position") << -50.0 << 1.0 << false << false
                                 << QStringList{"Seed", "\u2013", "80.0", "80.0", "k/ha", "No position"};
    QTest::newRow("stopped") << -50.0 << 0.0 << true << false
                             << QStringList{"Seed", "50.0", "Off", "0", "k/ha", "Stopped"};
}

void TestDriveStrip::aRowTellsRatesUnitAndSource()
{
    QFETCH(double, x);
    QFETCH(double, speed);
    QFETCH(bool, hasSignal);
    QFETCH(bool, shutoff);
    QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 0.0}}).isOk());
    bench->set(1, 1000, shutoff, true);
    bench->place({x, 0}, 0.0, speed);
    bench->simulation.vehicle()->setSignal(hasSignal);
    bench->simulation.run(5.0);
    RateTable table(&bench->simulation);
    QTEST(row(table, 0), "texts");
    QCOMPARE(row(table, 1), (QStringList{"Fertiliser", "\u2013", "\u2013", "\u2013", "kg/ha", "Not controlled"}));
}

void TestDriveStrip::figuresAreDrawnWhole()
{
    bench->place({0, 0}, 0.0, 1.0);
    for (const double rate : {12345.0, 20909.0, 44444.0, 99999.0, 123456.0}) {
        QVERIFY(bench->loadZones({{-100, 100, rate}}).isOk());
        bench->simulation.run(5.0);
        RateTable table(&bench->simulation);
        QCOMPARE(row(table, 0).value(1), QLocale(QLocale::English).toString(int(rate)));
    }
}

void TestDriveStrip::aProductThatNoPrescriptionDrivesIsNotControlled()
{
    Products products = ProductFile::standard();
    products[1].underVra = false;
    MachineBench other(products);
    QVERIFY(other.loadZones({{-100, 100, 50.0}}, {1, 2}).isOk());
    RateTable table(&other.simulation);
    const QStringList texts{"Fertiliser", "\u2013", "\u2013", "\u2013", "kg/ha", "Not controlled"};
    for (const double speed : {0.0, 2.0}) {
        other.place({0, 0}, 0.0, speed);
        other.simulation.run(3.0);
        QCOMPARE(row(table, 0).last(), speed == 0.0 ? QStringLiteral("Stopped") : QStringLiteral("Prescription"));
        QCOMPARE(row(table, 1), texts);
    }
}

void TestDriveStrip::ratesAreInTheOperatorsUnit()
{
    DataBroker broker;
    PrescriptionBackend backend(&broker);
    Machine machine(&broker, &backend, ProductFile::standard(), UnitSystem::Us);
    const ShownUnit unit = ShownUnit::of(machine, 2);
    QCOMPARE(unit.text, QStringLiteral("lb/ac"));
    // 100 kg/ha: 1 lb = 0.45359237 kg, 1 ac = 0.40468564224 ha.
    QCOMPARE(unit.rateText(100.0), QString::number(100.0 * 0.40468564224 / 0.45359237, 'f', 1));
    for (const auto &[rate, text] : {std::pair<double, const char *>{0.0, "0"},
                                     {0.01234, "0.0123"},
                                     {1.234, "1.23"},
                                     {9.9996, "10.0"},
                                     {0.00001, "0"},
                                     {99.0, "99.0"},
                                     {12345.6, "12,346"}})
        QCOMPARE(ShownUnit().rateText(rate), QLatin1String(text));
}

void TestDriveStrip::aTouchedRowMakesItsProductTheActiveOne()
{
    RateHistory history(&bench->simulation);
    DriveStrip strip(&bench->simulation, &history);
    strip.resize(792, strip.sizeHint().height());
    strip.show();
    const auto rowOf = [&strip](int number) {
        return strip.findChild<RateRow *>(QStringLiteral("rateRow%1").arg(number));
    };
    for (const int touched : {3, 2, 2, 1}) {
        QTest::mouseClick(rowOf(touched), Qt::LeftButton);
        QCOMPARE(bench->machine.activeProduct(), touched);
        for (int number = 1; number <= 3; ++number) {
            QCOMPARE(rowOf(number)->isChecked(), number == touched);
            QCOMPARE(rowOf(number)->text(), ProductFile::standard().at(number - 1).name);
        }
    }
    bench->machine.setActiveProduct(2);
    QVERIFY(rowOf(2)->isChecked() && !rowOf(1)->isChecked());
    // The keyboard does what the finger does.
    QTest::keyClick(rowOf(3), Qt::Key_Return);
    QCOMPARE(bench->machine.activeProduct(), 3);
}

void TestDriveStrip::aRowIsBigEnoughForAGlove()
{
    RateTable table(&bench->simulation);
    table.resize(515, RateTable::usualHeight());
    table.show();
    const QList<RateRow *> rows = table.findChildren<RateRow *>();
    QCOMPARE(rows.size(), 3);
    for (const RateRow *row : rows) {
        QVERIFY(Theme::millimetresPerPixel * row->height() >= Theme::leastTouchTarget);
        QVERIFY(table.rect().contains(row->geometry()));
    }
}

void TestDriveStrip::sixteenProductsArePagesOfThree()
{
    Products products;
    for (int i = 1; i <= 16; ++i) {
        products.append(ProductFile::standard().first());
        products.last().name = QStringLiteral("A name of many letters %1").arg(i);
        products.last().shortName = QStringLiteral("P%1").arg(i);
    }
    MachineBench many(products);
    RateHistory history(&many.simulation);
    DriveStrip strip(&many.simulation, &history);
    strip.resize(792, RateTable::usualHeight());
    auto *page = strip.findChild<TouchButton *>(QStringLiteral("ratesPage"));
    auto *table = strip.findChild<RateTable *>();
    strip.show();
    QVERIFY(page->isVisible() && page->width() >= 56 && page->height() >= 56);
    many.machine.setActiveProduct(5);
    QStringList seen;
    for (int pages = 0; pages < 6; ++pages) {
        QCOMPARE(page->text(), QStringLiteral("%1/6").arg((pages + 1) % 6 + 1));
        seen += paintedTexts(*table).filter(QRegularExpression(QStringLiteral("^P\\d+$")));
        QTest::mouseClick(page, Qt::LeftButton);
    }
    QCOMPARE(seen.size(), 16);
    QCOMPARE(seen.mid(0, 3), (QStringList{"P4", "P5", "P6"}));
    QCOMPARE(seen.last(), QStringLiteral("P3"));
    QCOMPARE(page->text(), QStringLiteral("2/6"));
    QTest::mouseClick(page, Qt::LeftButton);
    many.machine.setActiveProduct(2);
    QCOMPARE(page->text(), QStringLiteral("1/6"));
}

void TestDriveStrip::aNewLookAheadIsSeenAtTheNextStep()
{
    QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 80.0}}).isOk());
    bench->set(1, 1000, false, false);
    bench->place({-20, 0}, 90.0, 2.0);
    bench->simulation.run(1.0);
    RateTable table(&bench->simulation);
    QCOMPARE(row(table, 0).at(2), QStringLiteral("50.0"));
    bench->set(1, 15000, false, false);
    bench->simulation.step();
    QCOMPARE(row(table, 0).at(2), QStringLiteral("80.0"));
}

void TestDriveStrip::theHistoryIsOfTheGroundUnderTheImplement()
{
    QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 80.0}}).isOk());
    RateHistory history(&bench->simulation);
    bench->simulation.step();
    QVERIFY(history.samples(1).empty());
    history.setKept(true);
    bench->set(1, 15000, false, false);
    bench->place({-20, 0}, 90.0, 2.0);
    bench->simulation.run(1.0);
    QCOMPARE(history.samples(1).size(), size_t(10));
    QCOMPARE(history.samples(1).back().prescribed, 50.0);
    QVERIFY(history.samples(1).back().applied > 75.0);
    QVERIFY(std::isnan(history.samples(2).back().prescribed));
    history.setKept(false);
    bench->simulation.step();
    QVERIFY(history.samples(1).empty());
}

void TestDriveStrip::theHistoryIsHalfAMinuteLong()
{
    RateHistory history(&bench->simulation);
    history.setKept(true);
    bench->simulation.run(100.0);
    QVERIFY2(qAbs(int(history.samples(1).size()) - 301) <= 1, qPrintable(QString::number(history.samples(1).size())));
    QVERIFY(history.samples(1).front().time >= 70.0 - 1e-6);
    QCOMPARE(history.samples(1).back().time, 100.0);
}

void TestDriveStrip::aProductThatBecomesAnotherOneHasNoHistory_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("isKept");
    const auto row = [](const char *title, const QString &name, Product::Kind kind, bool isKept) {
        QTest::newRow(title) << name << int(kind) << isKept;
    };
    row("another name", QStringLiteral("Lime"), Product::Kind::Count, false);
    row("another kind", QStringLiteral("Seed"), Product::Kind::Weight, false);
    row("the same", QStringLiteral("Seed"), Product::Kind::Count, true);
}

void TestDriveStrip::aProductThatBecomesAnotherOneHasNoHistory()
{
    QFETCH(QString, name);
    QFETCH(int, kind);
    RateHistory history(&bench->simulation);
    history.setKept(true);
    bench->simulation.run(1.0);
    Products products = bench->machine.products();
    products[0].name = name;
    products[0].kind = Product::Kind(kind);
    // Others change in any case.
    products[2].name = QStringLiteral("Water");
    products.append(products.last());
    bench->machine.setProducts(products);
    QTEST(!history.samples(1).empty(), "isKept");
    QCOMPARE(history.samples(2).size(), size_t(10));
    QVERIFY(history.samples(3).empty() && history.samples(4).empty());
    bench->simulation.step();
    QCOMPARE(history.samples(3).size(), size_t(1));
    QCOMPARE(history.samples(4).size(), size_t(1));
}

int TestDriveStrip::lineAt(const QImage &plot, double secondsBack)
{
    // The axes' area, see the plot's insets.
    const double left = 62.0;
    const double right = plot.width() - 14.0;
    const int x = int(right - secondsBack / RateHistory::span * (right - left));
    for (int y = 36; y < plot.height() - 24; ++y) {
        const QColor color = plot.pixelColor(x, y);
        const QColor line = Theme::colors().applied;
        if (qAbs(color.red() - line.red()) + qAbs(color.green() - line.green()) + qAbs(color.blue() - line.blue()) < 60)
            return y;
    }
    return -1;
}

void TestDriveStrip::thePlotShowsTheStepWhereItIsApplied()
{
    QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 80.0}}).isOk());
    RateHistory history(&bench->simulation);
    history.setKept(true);
    bench->set(1, 5000, false, false);
    bench->place({-40, 0}, 90.0, 2.0);
    // The rate changes 5 s before the border, which is reached after 20 s.
    bench->simulation.run(25.0);
    RatePlot plot(&bench->machine, &history);
    plot.resize(277, 164);
    QImage image(plot.size(), QImage::Format_RGB32);
    image.fill(Theme::colors().panel);
    plot.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    QCOMPARE(lineAt(image, 27.0), -1);
    const int before = lineAt(image, 15.0);
    const int after = lineAt(image, 2.0);
    QVERIFY2(before > 0 && after > 0 && before > after + 25,
             qPrintable(QStringLiteral("%1 %2").arg(before).arg(after)));
    QVERIFY(qAbs(lineAt(image, 11.0) - before) <= 2);
    QVERIFY(qAbs(lineAt(image, 8.0) - after) <= 2);
}

void TestDriveStrip::thePlotNamesItsAxes()
{
    QVERIFY(bench->loadZones({{-100, 0, 50.0}, {0, 100, 80.0}}).isOk());
    RateHistory history(&bench->simulation);
    history.setKept(true);
    bench->place({-40, 0}, 90.0, 2.0);
    bench->simulation.run(30.0);
    RatePlot plot(&bench->machine, &history);
    plot.resize(277, 164);
    const QStringList texts = paintedTexts(plot);
    for (const char *text : {"Plan here", "Applied", "k/ha", "now", "\u221215 s", "0", "50.0", "100"})
        QVERIFY2(texts.contains(QString::fromUtf8(text)), qPrintable(texts.join(QLatin1Char('|'))));
    bench->machine.setActiveProduct(2);
    QVERIFY(paintedTexts(plot).contains(QStringLiteral("kg/ha")));
}

void TestDriveStrip::aPlotOfNothingHasAScale()
{
    RateHistory history(&bench->simulation);
    history.setKept(true);
    bench->simulation.run(1.0);
    RatePlot plot(&bench->machine, &history);
    plot.resize(277, 164);
    const QStringList texts = paintedTexts(plot);
    QCOMPARE(texts.count(QStringLiteral("0")), 1);
    QVERIFY2(texts.contains(QStringLiteral("1.00")), qPrintable(texts.join(QLatin1Char('|'))));
}

void TestDriveStrip::stepsShareADrawing()
{
    RateHistory history(&bench->simulation);
    DriveStrip strip(&bench->simulation, &history);
    strip.resize(792, RateTable::usualHeight());
    strip.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strip));
    class Count : public QObject {
    public:
        int times = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            times += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } drawn;
    strip.update();
    strip.installEventFilter(&drawn);
    QTRY_VERIFY(drawn.times > 0);
    QTest::qWait(50);
    drawn.times = 0;
    for (int i = 0; i < 100; ++i) {
        bench->simulation.step();
        QCoreApplication::sendPostedEvents();
    }
    QCOMPARE(drawn.times, 0);
    QTRY_COMPARE(drawn.times, 1);
}

RXMAP_TEST(TestDriveStrip, Widgets)
#include "tst_drivestrip.moc"
