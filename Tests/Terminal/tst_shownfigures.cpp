#include "Backend/shownrate.h"
#include "layerwriter.h"
#include "legendpanel.h"
#include "machine.h"
#include "paintedtexts.h"
#include "shownnumber.h"
#include "terminaltest.h"
#include "terminalwindow.h"

#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

Q_DECLARE_METATYPE(UnitSystem)

namespace {

/// A unit of a file, and what 1 of it is in the base unit of its product: thousands, kg or L per hectare.
struct FileUnit {
    const char *text;
    int product;
    double base;
};

constexpr double acre = 0.40468564224; // Hectares, by definition; the other three are defined values, too.
constexpr double turf = 0.009290304;
constexpr double pound = 0.45359237;
constexpr double gallon = 3.785411784;

constexpr FileUnit fileUnits[] = {
    {"1000/ha", 1, 1.0},
    {"1000/ac", 1, 1.0 / acre},
    {"seeds/m2", 1, 10.0},
    {"1000/1000 ft2", 1, 1.0 / turf},
    {"kg/ha", 2, 1.0},
    {"lb/ac", 2, pound / acre},
    {"lb/1000 ft2", 2, pound / turf},
    {"g/m2", 2, 10.0},
    {"t/ha", 2, 1000.0},
    {"L/ha", 3, 1.0},
    {"gal/ac", 3, gallon / acre},
    {"gal/1000 ft2", 3, gallon / turf},
    {"fl oz/ac", 3, gallon / 128.0 / acre},
};

/// What 1 of the operator's unit is in the base unit.
double operatorUnit(UnitSystem system, int product)
{
    if (system == UnitSystem::Metric)
        return 1.0;
    const double amounts[] = {1.0, pound, gallon};
    return amounts[product - 1] / (system == UnitSystem::Us ? acre : turf);
}

/// A relative error that single precision may add on the way: half of the last of its 24 binary digits, twice.
constexpr double singlePrecision = 1.0 / (1 << 23);

/// Single precision keeps the second decimal up to here: 2^-24 of this number is half of a hundredth.
constexpr double mostHundredths = 83886.0;

} // namespace

/// Figures as the terminal shows them at a point and in the legend, compared with those of the file.
class TestShownFigures : public TerminalTest {
    Q_OBJECT

private Q_SLOTS:
    void aFigureIsOffByLessThanHalfOfItsLastDigit_data();
    void aFigureIsOffByLessThanHalfOfItsLastDigit();

private:
    LoadReport openMap(const FileUnit &unit, const std::vector<double> &rates);

    QTemporaryDir folder;
};

void TestShownFigures::aFigureIsOffByLessThanHalfOfItsLastDigit_data()
{
    QTest::addColumn<UnitSystem>("system");
    QTest::addColumn<int>("unit");
    const std::pair<const char *, UnitSystem> systems[] = {
        {"metric", UnitSystem::Metric}, {"us", UnitSystem::Us}, {"turf", UnitSystem::Turf}};
    for (const auto &[name, system] : systems) {
        for (int unit = 0; unit < int(std::size(fileUnits)); ++unit)
            QTest::addRow("%s in %s", fileUnits[unit].text, name) << system << unit;
    }
}

LoadReport TestShownFigures::openMap(const FileUnit &unit, const std::vector<double> &rates)
{
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.fields = {{"dose", 1.0}, {"unit", QStringLiteral("text")}};
    for (size_t i = 0; i < rates.size(); ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * double(i), 48.0, 0.001), {rates[i], QLatin1String(unit.text)}});
    const QString path = folder.filePath(QStringLiteral("map.geojson"));
    return sketch.write(path) ? terminal().open({{path}}).first() : LoadReport();
}

void TestShownFigures::aFigureIsOffByLessThanHalfOfItsLastDigit()
{
    QFETCH(UnitSystem, system);
    QFETCH(int, unit);
    const FileUnit &ofFile = fileUnits[unit];
    const double factor = ofFile.base / operatorUnit(system, ofFile.product);
    const bool isOperatorsOwn = std::fabs(factor - 1.0) < 1e-12;
    host.reset();
    host.reset(new TerminalHost(system));
    terminal().machine()->setActiveProduct(ofFile.product);
    // At most as many rates as the legend shows one by one.
    for (const std::vector<double> &rates :
         {std::vector<double>{0.01, 0.07, 0.25, 1.0, 4.07, 15.35, 33.33, 100.5, 112.64, 1234.56, 32150.25, 83885.99},
          std::vector<double>{0.05, 0.99, 2.5, 7.77, 19.95, 66.67, 250.05, 999.99, 4096.01, 16384.15, 65535.35},
          std::vector<double>{83886.13, 131071.01, 262144.37, 999999.99}}) {
        const LoadReport report = openMap(ofFile, rates);
        QVERIFY2(report.isOk(), qPrintable(report.error));
        QCOMPARE(report.sources.first().product, ofFile.product);
        const QStringList texts = paintedTexts(*terminal().window()->legend());
        QList<double> legend;
        for (const QString &text : texts)
            legend.append(QLocale().toDouble(text));
        for (size_t i = 0; i < rates.size(); ++i) {
            const double exact = rates[i] * factor;
            const double slack = exact * singlePrecision;
            const QPointF middle = terminal().toField(QPointF(11.0005 + 0.001 * double(i), 48.0005)).value;
            const QString text = terminal().touch(middle).remove(QStringLiteral("Rx Rate: "));
            const QString told = QStringLiteral("%1 is shown as %2").arg(exact, 0, 'g', 12).arg(text);
            QVERIFY2(std::fabs(text.toDouble() - exact) <= 0.005 + slack, qPrintable(told));
            if (isOperatorsOwn && rates[i] < mostHundredths) {
                QCOMPARE(text, QString::number(rates[i], 'f', 2));
                QVERIFY2(texts.contains(ShownNumber::inLanguage(ShownRate::text(rates[i]))),
                         qPrintable(texts.join(QLatin1Char('|'))));
            }
            const bool isInLegend = std::any_of(legend.begin(), legend.end(), [&](double shown) {
                return shown != 0.0 && std::fabs(shown - exact) <= 0.5 * ShownRate::step(exact) + slack;
            });
            QVERIFY2(isInLegend, qPrintable(told));
        }
    }
}

RXMAP_TEST(TestShownFigures, Widgets)
#include "tst_shownfigures.moc"
