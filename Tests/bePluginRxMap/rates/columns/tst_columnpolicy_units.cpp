#include "columnsketch.h"
#include "testbase.h"

#include <cmath>

using namespace ColumnSketch;

Q_DECLARE_METATYPE(RateSource::UnitFrom)
Q_DECLARE_METATYPE(MapFinding::Kind)

/// In which units columns are taken, and what is said about that.
class ColumnPolicyUnitsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void readsTheUnit_data();
    void readsTheUnit();
    void looksForUnitsBesideTheirOwnColumn();
    void takesTheOperatorsUnit();
    void refusesUnitsThatAreNone();
    void saysWhatItTakesForGranted_data();
    void saysWhatItTakesForGranted();
    void namesColumnsThatFitNoProduct();
};

void ColumnPolicyUnitsTest::readsTheUnit_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("behind");
    QTest::addColumn<QString>("beside");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<RateSource::UnitFrom>("from");
    QTest::addColumn<double>("factor");
    QTest::addColumn<QString>("contradiction");
    using From = RateSource::UnitFrom;
    const auto row = [](const char *title, const char *name, const char *behind, const char *beside, const char *unit,
                        From from, double factor, const char *contradiction = "") {
        QTest::newRow(title) << name << behind << beside << unit << from << factor << contradiction;
    };
    row("beside", "Rate_kg_ha", "t/ha", "dt/ha", "dt/ha", From::Column, 100.0,
        "dt/ha by column \"Unit\", which counts, but t/ha by its entries");
    row("beside, another in the name", "Rate_lb_ac", "", "kg/ha", "kg/ha", From::Column, 1.0,
        "kg/ha by column \"Unit\", which counts, but lb/ac by its name");
    row("beside, another amount in the name", "Rate_lb", "kg/ha", "kg/ha", "kg/ha", From::Column, 1.0,
        "kg/ha by column \"Unit\", which counts, but lb/ac by its name");
    row("beside, the amount in the name", "Rate_kg", "", "kg/m2", "kg/m2", From::Column, 10000.0);
    row("beside, the same in other words", "Rate_kg_ha", "kg per hectare", "KG/HA", "kg/ha", From::Column, 1.0);
    row("beside, a nutrient in the name", "K_ha", "", "kg/ha", "kg/ha", From::Column, 1.0);
    row("behind", "Rate_kg_ha", "t/ha", "", "t/ha", From::Text, 1000.0,
        "t/ha by its entries, which count, but kg/ha by its name");
    row("name", "Rate_g_m2", "", "", "g/m2", From::Name, 10.0);
    row("none", "Rate", "", "", "kg/ha", From::Assumed, 1.0);
    row("unknown beside", "Rate_t_ha", "", "bags", "t/ha", From::Name, 1000.0);
    row("unknown behind", "Rate", "bags", "", "kg/ha", From::Assumed, 1.0);
}

void ColumnPolicyUnitsTest::readsTheUnit()
{
    QFETCH(QString, name);
    QFETCH(QString, behind);
    QFETCH(QString, beside);
    QFETCH(double, factor);
    RawPrescription map = tableOf({name});
    map.columns[0].unit = behind;
    map.texts.push_back({QStringLiteral("Unit"), 1, beside, false});
    map.texts.push_back({QStringLiteral("name"), 2, QStringLiteral("west"), false});
    const auto decision =
        ColumnPolicy({product("Urea", DbGroupProductGroupInfo::WeightRate)}, {}).decide(map, polygons());
    QCOMPARE(decision.sources.size(), 1);
    QCOMPARE(decision.sources.first().column, name);
    QCOMPARE(decision.sources.first().product, 1);
    QTEST(decision.sources.first().unit, "unit");
    QTEST(decision.sources.first().unitFrom, "from");
    QCOMPARE(decision.feeds.front().factor, factor);
    QFETCH(QString, contradiction);
    QStringList told;
    for (const MapFinding &finding : decision.findings) {
        if (finding.kind == MapFinding::Kind::UnitMismatch)
            told.append(finding.text);
    }
    const QString line = QStringLiteral("the unit of column \"%1\" is %2").arg(name, contradiction);
    QCOMPARE(told, contradiction.isEmpty() ? QStringList() : QStringList(line));
}

void ColumnPolicyUnitsTest::looksForUnitsBesideTheirOwnColumn()
{
    RawPrescription map = tableOf({"Rate1", "Rate2"});
    map.columns[0].field = 1;
    map.columns[1].field = 3;
    map.columnNames = QStringList{"a", "Rate1", "b", "Rate2", "c"};
    map.numberFields = {1, 3};
    const auto units = [&map] {
        QStringList result;
        for (int place = 0; place < 2; ++place)
            result.append(ColumnUnits(map).of(place).unit.text());
        return result;
    };
    map.texts = {{QStringLiteral("a"), 2, QStringLiteral("l/ha"), false},
                 {QStringLiteral("b"), 4, QStringLiteral("kg/ha"), false}};
    QCOMPARE(units(), QStringList({"L/ha", "kg/ha"}));
    map.texts[0].field = 0;
    map.texts[1].field = 2;
    QCOMPARE(units(), QStringList({"kg/ha", "kg/ha"}));
    map.texts.pop_back();
    QCOMPARE(units(), QStringList({"L/ha", "L/ha"}));
    for (const char *name : {"Unit", "Rate UOM", "UNIT_1", "remark"}) {
        map.texts[0].name = QString::fromLatin1(name);
        QCOMPARE(units(), QStringList({"L/ha", "L/ha"}));
    }
    map.texts[0].name = QStringLiteral("Yield_Unit");
    QCOMPARE(units(), QStringList({"", ""}));
    map.texts[0].name = QStringLiteral("Unit");
    map.texts[0].isMixed = true;
    map.texts[0].other = QStringLiteral("lb/ac");
    map.columns[1].name = QStringLiteral("Rate2_kg_ha");
    QCOMPARE(units(), QStringList({"", "kg/ha"}));
    QCOMPARE(ColumnUnits(map).of(1).mixed, &map.texts[0]);
    const QString said = ColumnPolicy(machine(), {"", "", "#2"}).decide(map, polygons()).findings.first().text;
    QCOMPARE(said,
             QStringLiteral("column \"Unit\" gives different units (\"l/ha\", \"lb/ac\") and is not used for column "
                            "\"Rate1\""));
}

void ColumnPolicyUnitsTest::takesTheOperatorsUnit()
{
    const RawPrescription map = tableOf({"FERT_kg_ha", "HERB_l_ha"});
    const ColumnPolicy policy(machine(), {}, {QString(), QStringLiteral("lbs/acre")});
    const auto decision = policy.decide(map, polygons());
    QCOMPARE(decision.sources.size(), 2);
    QCOMPARE(decision.sources.at(0).unit, QStringLiteral("lb/ac"));
    QCOMPARE(decision.sources.at(0).unitFrom, RateSource::UnitFrom::Operator);
    QCOMPARE(decision.sources.at(1).unit, QStringLiteral("L/ha"));
    QVERIFY(std::fabs(decision.feeds.front().factor - 1.12085116) < 1e-8);
    RawPrescription contradicted = tableOf({"FERT_kg_ha"});
    contradicted.texts.push_back({QStringLiteral("Unit"), 1, QStringLiteral("t/ha"), false});
    QCOMPARE(textsOf(policy.decide(contradicted, polygons()).findings), QStringList());
}

void ColumnPolicyUnitsTest::refusesUnitsThatAreNone()
{
    QCOMPARE(ColumnPolicy(machine(), {}, {"", "bags"}).refusal(), QStringLiteral("\"bags\" is no unit of a rate"));
    QCOMPARE(ColumnPolicy(machine(), {}, {"", "", "", "kg/ha"}).refusal(),
             QStringLiteral("4 units are named, but the machine has 3 products"));
}

void ColumnPolicyUnitsTest::saysWhatItTakesForGranted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isNamed");
    QTest::addColumn<QString>("beside");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QList<MapFinding::Kind>>("kinds");
    using Kind = MapFinding::Kind;
    using Kinds = QList<Kind>;
    const QString unknown = QStringLiteral("the unit of column \"%1\" is not known, taken as k/ha");
    QTest::newRow("nothing") << "SEED_K_HA" << false << "" << QStringList() << Kinds();
    QTest::newRow("unknown unit") << "rate" << false << "" << QStringList(unknown.arg("rate"))
                                  << Kinds{Kind::UnitUnknown};
    QTest::newRow("unit that is none") << "rate" << false << "bags"
                                       << QStringList({"\"bags\", given for column \"rate\", is no unit of a rate",
                                                       unknown.arg("rate")})
                                       << Kinds{Kind::UnitUnknown, Kind::UnitUnknown};
    QTest::newRow("guess") << "thing" << false << ""
                           << QStringList({"column \"thing\" is a guess: nothing in its name says that it holds rates",
                                           unknown.arg("thing")})
                           << Kinds{Kind::GuessedColumn, Kind::UnitUnknown};
    QTest::newRow("named") << "thing" << true << "" << QStringList(unknown.arg("thing")) << Kinds{Kind::UnitUnknown};
    QTest::newRow("unit that does not fit")
        << "SEED_kg_ha" << true << ""
        << QStringList("column \"SEED_kg_ha\" is in kg/ha, which does not fit product 1 (Seed); taken as k/ha")
        << Kinds{Kind::UnitMismatch};
}

void ColumnPolicyUnitsTest::saysWhatItTakesForGranted()
{
    QFETCH(QString, name);
    QFETCH(bool, isNamed);
    QFETCH(QString, beside);
    RawPrescription map = tableOf({name});
    map.texts.push_back({QStringLiteral("Unit"), 1, beside, false});
    const ColumnPolicy policy(machine().mid(0, 1), isNamed ? QStringList(name) : QStringList());
    const QList<MapFinding> findings = policy.decide(map, polygons()).findings;
    QTEST(textsOf(findings), "texts");
    QList<MapFinding::Kind> kinds;
    for (const MapFinding &finding : findings)
        kinds.append(finding.kind);
    QTEST(kinds, "kinds");
}

void ColumnPolicyUnitsTest::namesColumnsThatFitNoProduct()
{
    const QList<MachineProduct> seed = machine().mid(0, 1);
    const QString line =
        QStringLiteral("no product that a prescription may drive fits the unit of \"FERT_kg_ha\" (kg/ha)");
    QCOMPARE(ColumnPolicy(seed, {}).decide(tableOf({"FERT_kg_ha"}), polygons()).error, line);
    const auto some = ColumnPolicy(seed, {}).decide(tableOf({"FERT_kg_ha", "SEED_K_HA"}), polygons());
    QCOMPARE(some.error, QString());
    QCOMPARE(textsOf(some.findings), QStringList(line));
    QCOMPARE(some.findings.first().kind, MapFinding::Kind::UnitMismatch);
    QCOMPARE(some.warnings, QStringList());
}

RXMAP_TEST(ColumnPolicyUnitsTest, Core)
#include "tst_columnpolicy_units.moc"
