#include "fieldscene.h"
#include "legendpanel.h"
#include "paintedtexts.h"
#include "testbase.h"

#include <limits>

namespace {

LegendPanel::Content contentOf(const QList<double> &limits, double factor)
{
    LegendPanel::Content content;
    content.factor = factor;
    for (const double limit : limits)
        content.classes.append({limit, Qt::green});
    return content;
}

/// The classes of a panel as drawn, without its head and its rounded corners.
QImage pictureOf(const QList<double> &limits, bool hasSingleRates)
{
    LegendPanel::Content content = contentOf(limits, 1.0);
    content.hasSingleRates = hasSingleRates;
    LegendPanel panel;
    panel.show(content);
    constexpr int head = 112;
    constexpr int foot = 14;
    return panel.grab().toImage().copy(0, head, panel.width(), panel.height() - head - foot);
}

/// The texts of a panel without areas after the one that says where the unit comes from.
QStringList classTexts(LegendPanel &panel)
{
    return paintedTexts(panel).mid(1);
}

/// Pixels from the right-most dark one to the picture's right edge.
int clearance(const QImage &image)
{
    for (int x = image.width() - 1; x >= 0; --x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qGray(image.pixel(x, y)) < 100)
                return image.width() - 1 - x;
        }
    }
    return image.width();
}

} // namespace

/// The legend's texts.
class TestLegendPanel : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void classesReadAsRangesInTheOperatorsUnit_data();
    void classesReadAsRangesInTheOperatorsUnit();
    void singleRatesReadAsTheRateItself_data();
    void singleRatesReadAsTheRateItself();
    void aSwatchShowsItsColorAsOnTheGround();
    void theHeadSaysWhereTheUnitIsFrom_data();
    void theHeadSaysWhereTheUnitIsFrom();
    void longNamesAreToldApart_data();
    void longNamesAreToldApart();
    void areasStandBesideTheClassesAndSumsBelow();
    void twelveClassesFitAboveTheGuidancePage();
    void longNumbersAreDrawnWhole_data();
    void longNumbersAreDrawnWhole();
    void theGreatestNumbersFitTheirPanel();
    void anEmptyLegendHasNoClasses();
};

void TestLegendPanel::classesReadAsRangesInTheOperatorsUnit_data()
{
    QTest::addColumn<QList<double>>("limits");
    QTest::addColumn<double>("factor");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("with zero") << QList<double>{0.0, 49.0, 300.0} << 1.0 << QStringList{"0", "0 – 49", "49 – 300"};
    QTest::newRow("without zero") << QList<double>{23.0, 60.0} << 1.0 << QStringList{"≤ 23", "23 – 60"};
    QTest::newRow("converted") << QList<double>{10.0, 20.0} << 0.25 << QStringList{"≤ 2.5", "2.5 – 5"};
    QTest::newRow("small") << QList<double>{0.0123, 0.5} << 1.0 << QStringList{"≤ 0.0123", "0.0123 – 0.5"};
    QTest::newRow("large") << QList<double>{70000.0, 81234.5} << 1.0 << QStringList{"≤ 70,000", "70,000 – 81,234.5"};
}

void TestLegendPanel::classesReadAsRangesInTheOperatorsUnit()
{
    QFETCH(QList<double>, limits);
    QFETCH(double, factor);
    LegendPanel panel;
    panel.show(contentOf(limits, factor));
    QTEST(classTexts(panel), "texts");
    QCOMPARE(panel.size(), panel.sizeHint());
}

void TestLegendPanel::singleRatesReadAsTheRateItself_data()
{
    QTest::addColumn<QList<double>>("rates");
    QTest::addColumn<double>("factor");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("with zero") << QList<double>{0.0, 49.0, 300.0} << 1.0 << QStringList{"0", "49", "300"};
    QTest::newRow("one rate") << QList<double>{12.5} << 1.0 << QStringList{"12.5"};
    QTest::newRow("as exact as an answer")
        << QList<double>{100.0 / 3, 1234.567} << 1.0 << QStringList{"33.33", "1,234.57"};
    QTest::newRow("single precision") << QList<double>{double(0.1F)} << 1.0 << QStringList{"0.1"};
    QTest::newRow("converted") << QList<double>{10.0, 20.0} << 0.25 << QStringList{"2.5", "5"};
    QTest::newRow("small") << QList<double>{0.0123} << 1.0 << QStringList{"0.0123"};
    QTest::newRow("long") << QList<double>{81234567.0} << 1.0 << QStringList{"81,234,567"};
    QTest::newRow("beyond reading") << QList<double>{1.236e30} << 1.0 << QStringList{"1.236e+30"};
}

void TestLegendPanel::singleRatesReadAsTheRateItself()
{
    QFETCH(QList<double>, rates);
    QFETCH(double, factor);
    LegendPanel::Content content = contentOf(rates, factor);
    content.hasSingleRates = true;
    LegendPanel panel;
    panel.show(content);
    QTEST(classTexts(panel), "texts");
}

void TestLegendPanel::aSwatchShowsItsColorAsOnTheGround()
{
    const QColor clear(0, 200, 100, 128);
    LegendPanel::Content content;
    content.classes = {{10.0, Qt::green}, {20.0, clear}};
    LegendPanel panel;
    panel.show(content);
    const QPoint secondSwatch(30, 169);
    QCOMPARE(panel.grab().toImage().pixelColor(secondSwatch), FieldScene::onGround(clear));
}

void TestLegendPanel::theHeadSaysWhereTheUnitIsFrom_data()
{
    using From = RateSource::UnitFrom;
    QTest::addColumn<QString>("unit");
    QTest::addColumn<int>("from");
    QTest::addColumn<QString>("text");
    QTest::newRow("operator") << "lb/ac" << int(From::Operator) << "lb/ac named by the operator";
    QTest::newRow("format") << "lb/ac" << int(From::Format) << "lb/ac from the format";
    QTest::newRow("column") << "lb/ac" << int(From::Column) << "lb/ac from another column";
    QTest::newRow("text") << "lb/ac" << int(From::Text) << "lb/ac from the texts";
    QTest::newRow("name") << "lb/ac" << int(From::Name) << "lb/ac from the name";
    QTest::newRow("assumed") << "kg/ha" << int(From::Assumed) << "not known, taken as kg/ha";
    QTest::newRow("of no known kind") << "" << int(From::Assumed) << "unit not known";
}

void TestLegendPanel::theHeadSaysWhereTheUnitIsFrom()
{
    QFETCH(QString, unit);
    QFETCH(int, from);
    LegendPanel::Content content = contentOf({1.0}, 1.0);
    content.product = QStringLiteral("Urea");
    content.source.column = QStringLiteral("Rate_lb_ac");
    content.source.unit = unit;
    content.source.unitFrom = RateSource::UnitFrom(from);
    LegendPanel panel;
    panel.show(content);
    QCOMPARE(paintedTexts(panel).mid(0, 2), QStringList({"Urea", "Rate_lb_ac"}));
    QTEST(paintedTexts(panel).at(2), "text");
}

void TestLegendPanel::longNamesAreToldApart_data()
{
    QTest::addColumn<QString>("one");
    QTest::addColumn<QString>("other");
    const auto row = [](const char *tag, const char *one, const char *other) {
        QTest::newRow(tag) << QString::fromLatin1(one) << QString::fromLatin1(other);
    };
    row("at the end", "Ammonium sulphate nitrate solution, north", "Ammonium sulphate nitrate solution, south");
    row("in the middle", "Application_of_nitrogen_1_of_spring_wheat", "Application_of_nitrogen_2_of_spring_wheat");
    row("one word", "Kalkammonsalpetergranulatmischungsommer", "Kalkammonsalpetergranulatmischungwinter");
}

void TestLegendPanel::longNamesAreToldApart()
{
    const auto shown = [](const QString &product, const QString &column) {
        LegendPanel panel;
        LegendPanel::Content content = contentOf({100.0}, 1.0);
        content.product = product;
        content.source.column = column;
        panel.show(content);
        // The description for those who cannot see it is never shortened.
        const QString told = panel.accessibleDescription();
        return told.contains(product) && told.contains(column) ? paintedTexts(panel) : QStringList();
    };
    QFETCH(QString, one);
    QFETCH(QString, other);
    const QString plain = QStringLiteral("Urea");
    for (const bool isProduct : {true, false}) {
        const QStringList first = isProduct ? shown(one, plain) : shown(plain, one);
        const QStringList second = isProduct ? shown(other, plain) : shown(plain, other);
        QVERIFY(!first.isEmpty());
        QVERIFY2(first != second, qPrintable(first.join(QLatin1Char('|'))));
        QVERIFY(first.contains(plain));
    }
}

void TestLegendPanel::areasStandBesideTheClassesAndSumsBelow()
{
    LegendPanel::Content content = contentOf({10.0, 20.0, 30.0, 40.0}, 1.0);
    content.hasSingleRates = true;
    content.unit = QStringLiteral("lb/ac");
    content.areas = {0.004, 1.234, 12.34, 1234.6};
    content.areaUnit = QStringLiteral("ac");
    content.amount = 50123.4;
    content.amountUnit = QStringLiteral("lb");
    LegendPanel panel;
    panel.show(content);
    QCOMPARE(paintedTexts(panel).mid(1),
             QStringList({"lb/ac", "ac", "10", "< 0.01", "20", "1.23", "30", "12.3", "40", "1,235", "Area", "1,248 ac",
                          "Total", "50,123 lb"}));
    // A unit whose amounts do not add up, such as pressure, has no total.
    content.amountUnit.clear();
    panel.show(content);
    QVERIFY(!paintedTexts(panel).contains(QStringLiteral("Total")));
}

void TestLegendPanel::twelveClassesFitAboveTheGuidancePage()
{
    constexpr int room = 500;
    for (int count = 1; count <= 12; ++count) {
        LegendPanel::Content content = contentOf({}, 1.0);
        content.areaUnit = QStringLiteral("ha");
        content.amountUnit = QStringLiteral("kg");
        for (int i = 0; i < count; ++i)
            content.classes.append({double(i), Qt::green});
        LegendPanel panel;
        panel.show(content);
        QVERIFY2(panel.height() <= room, qPrintable(QString::number(count)));
        content.product = QStringLiteral("Ammonium sulphate nitrate solution");
        content.source.column = QStringLiteral("Application_of_ammonium_sulphate_nitrate_solution");
        panel.show(content);
        QVERIFY2(panel.height() <= room, qPrintable(QString::number(count)));
    }
}

void TestLegendPanel::longNumbersAreDrawnWhole_data()
{
    QTest::addColumn<int>("digits");
    QTest::addColumn<bool>("hasSingleRates");
    for (int digits = 1; digits <= 12; ++digits) {
        QTest::addRow("ranges of %d digits", digits) << digits << false;
        QTest::addRow("rates of %d digits", digits) << digits << true;
    }
}

void TestLegendPanel::longNumbersAreDrawnWhole()
{
    QFETCH(int, digits);
    QFETCH(bool, hasSingleRates);
    const QString stem(digits - 1, QLatin1Char('8'));
    const QImage ends3 = pictureOf({(stem + '1').toDouble(), (stem + '3').toDouble()}, hasSingleRates);
    const QImage ends6 = pictureOf({(stem + '1').toDouble(), (stem + '6').toDouble()}, hasSingleRates);
    // The last digit is visible, and not cut off.
    QVERIFY(ends3 != ends6);
    constexpr int inset = 14;
    QVERIFY2(clearance(ends3) > inset, qPrintable(QString::number(clearance(ends3))));
    QVERIFY2(clearance(ends6) > inset, qPrintable(QString::number(clearance(ends6))));
}

void TestLegendPanel::theGreatestNumbersFitTheirPanel()
{
    const double greatest = double(std::numeric_limits<float>::max());
    constexpr int inset = 14;
    QVERIFY(clearance(pictureOf({greatest / 2, greatest}, false)) > inset);
    QVERIFY(clearance(pictureOf({greatest / 2, greatest}, true)) > inset);
}

void TestLegendPanel::anEmptyLegendHasNoClasses()
{
    LegendPanel panel;
    panel.show(contentOf({}, 1.0));
    QCOMPARE(paintedTexts(panel), QStringList(QStringLiteral("No map")));
}

RXMAP_TEST(TestLegendPanel, Widgets)
#include "tst_legendpanel.moc"
