#include "columnpolicy.h"
#include "testbase.h"

#include <cmath>

Q_DECLARE_METATYPE(RateSource::UnitFrom)
Q_DECLARE_METATYPE(MapFinding::Kind)

namespace {

const double none = std::nan("");
const std::vector<double> anyRates = {5.0, 5.0, 6.0, 5.0};

SourceColumn column(const QString &name, std::vector<double> values = anyRates, std::vector<int> unreadable = {})
{
    SourceColumn result;
    result.name = name;
    result.values = std::move(values);
    result.unreadable = std::move(unreadable);
    return result;
}

QStringList textsOf(const QList<MapFinding> &findings)
{
    QStringList texts;
    for (const MapFinding &finding : findings)
        texts.append(finding.text);
    return texts;
}

/// A file of four records.
RawPrescription mapOf(std::vector<SourceColumn> columns)
{
    RawPrescription map;
    map.records = 4;
    map.xs = {11.0, 12.0};
    map.ys = {48.0, 49.0};
    map.columns = std::move(columns);
    for (SourceColumn &entry : map.columns) {
        entry.field = map.columnNames.size();
        map.columnNames.append(entry.name);
        map.numberFields.push_back(entry.field);
    }
    return map;
}

RawPrescription tableOf(const QStringList &names)
{
    std::vector<SourceColumn> columns;
    for (const QString &name : names)
        columns.push_back(column(name, {1.0, 1.0, 2.0, 3.0 + static_cast<double>(columns.size())}));
    return mapOf(std::move(columns));
}

MachineProduct product(const char *name, DbGroupProductGroupInfo::RateKind kind)
{
    MachineProduct result;
    result.name = QString::fromLatin1(name);
    result.kind = kind;
    return result;
}

QList<MachineProduct> machine()
{
    return {product("Seed", DbGroupProductGroupInfo::CountRate),
            product("Fertiliser", DbGroupProductGroupInfo::WeightRate),
            product("Spray", DbGroupProductGroupInfo::VolumeRate)};
}

PlaneRing square(double side)
{
    return {{0.0, 0.0}, {side, 0.0}, {side, side}, {0.0, side}};
}

/// Record 0 has two parts, record 2 a hole: 200, 400, 800 and 100 square metres.
std::vector<PlanePolygon> polygons()
{
    return {{square(10.0), {}, 0},
            {square(10.0), {}, 0},
            {square(20.0), {}, 1},
            {square(30.0), {square(10.0)}, 2},
            {square(10.0), {}, 3}};
}

/// "product:column" for each feed, products from 1.
QStringList feeds(const ColumnPolicy &policy, const RawPrescription &map)
{
    QStringList result;
    for (const ColumnPolicy::Feed &feed : policy.decide(map, polygons()).feeds)
        result.append(QStringLiteral("%1:%2").arg(QString::number(feed.product + 1),
                                                  map.columns[static_cast<size_t>(feed.column)].name));
    return result;
}

QStringList likely(std::vector<SourceColumn> columns)
{
    return feeds(ColumnPolicy(machine(), {}), mapOf(std::move(columns)));
}

} // namespace

/// Which columns feed which products.
class ColumnPolicyTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void handsColumnsOut_data();
    void handsColumnsOut();
    void feedsOnlyProductsThatAPrescriptionMayDrive();
    void feedsProductsFirstThatNoOtherFileFeeds();
    void saysWhatItLeavesOut();
    void refusesWhatNoFileCanMakeGood_data();
    void refusesWhatNoFileCanMakeGood();
    void prefersColumnsNamedAsRates();
    void passesOverWhatIsNoRateByItsContent_data();
    void passesOverWhatIsNoRateByItsContent();
    void knowsAColumnOfAreasByThePolygonsLessTheirHoles();
    void takesEqualColumnsForOne();
    void takesWholeNumbersAsALastResort_data();
    void takesWholeNumbersAsALastResort();
    void readsTheUnit_data();
    void readsTheUnit();
    void looksForUnitsBesideTheirOwnColumn();
    void takesTheOperatorsUnit();
    void refusesUnitsThatAreNone();
    void saysWhatItTakesForGranted_data();
    void saysWhatItTakesForGranted();
    void namesColumnsThatFitNoProduct();
    void refusesColumnsWithoutRates_data();
    void refusesColumnsWithoutRates();
    void tellsOfEntriesThatAreNoRates_data();
    void tellsOfEntriesThatAreNoRates();
    void sharesNamedColumnsAmongFiles_data();
    void sharesNamedColumnsAmongFiles();
    void namesAColumnThatNoFileHas();
};

void ColumnPolicyTest::handsColumnsOut_data()
{
    QTest::addColumn<QStringList>("table");
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QStringList>("feeds");
    const auto row = [](const char *title, const char *table, const char *named, const char *feeds) {
        const auto list = [](const char *text) {
            const QString line = QString::fromLatin1(text);
            return line.isEmpty() ? QStringList() : line.split(QLatin1Char(' '));
        };
        QTest::newRow(title) << list(table) << list(named) << list(feeds);
    };
    row("named", "HERB_L_HA zone A", "zone - herb_l_ha", "1:zone 3:HERB_L_HA");
    row("by number", "RATE RATE", "#2 #1", "1:RATE 2:RATE");
    row("one named for two products", "zone", "zone zone", "1:zone 2:zone");
    row("in the order of the products", "SEED_ks_ha FERT_kg_ha HERB_l_ha", "", "1:SEED_ks_ha 2:FERT_kg_ha 3:HERB_l_ha");
    row("in another order", "SEED_K_ha HERB_l_ha FERT_kg_ha", "", "1:SEED_K_ha 2:FERT_kg_ha 3:HERB_l_ha");
    row("fewer columns than products", "HERB_L_HA SEED_KS_HA", "", "1:SEED_KS_HA 3:HERB_L_HA");
    row("two that suit one product", "a_l_ha b_l_ha", "", "3:a_l_ha");
    row("more columns than products", "rate1 rate2 rate3 rate4", "", "1:rate1 2:rate2 3:rate3");
    row("seed by weight feeds no count", "SEED_kg_ha HERB_l_ha", "", "2:SEED_kg_ha 3:HERB_l_ha");
    row("nor does it take a place from another one", "SEED_kg_ha FERT_lb_ac", "", "2:FERT_lb_ac");
    row("a unit that does not fit, asked for", "SEED_kg_ha", "SEED_kg_ha", "1:SEED_kg_ha");
    row("by its name before its kind", "UREA_kg_ha Fertiliser_kg_ha", "", "2:Fertiliser_kg_ha");
    row("ounces of a liquid", "Herb_oz_ac", "", "3:Herb_oz_ac");
    row("nutrients are fertiliser", "N", "", "2:N");
    row("nutrients by their oxide", "P2O5 rate_k_ha", "", "1:rate_k_ha");
    row("a target before what was put out", "Applied_kg_ha Target_kg_ha", "", "2:Target_kg_ha");
    row("what was put out, where there is no target", "Applied_kg_ha", "", "2:Applied_kg_ha");
    row("columns that suit any product", "rate1 rate2", "", "1:rate1 2:rate2");
    row("one of them suits", "rate1 rate_l_ha rate2", "", "1:rate1 2:rate2 3:rate_l_ha");
}

void ColumnPolicyTest::handsColumnsOut()
{
    QFETCH(QStringList, table);
    QFETCH(QStringList, named);
    named.replaceInStrings(QStringLiteral("-"), QString());
    QTEST(::feeds(ColumnPolicy(machine(), named), tableOf(table)), "feeds");
}

void ColumnPolicyTest::feedsOnlyProductsThatAPrescriptionMayDrive()
{
    QList<MachineProduct> products = machine();
    products[1].isDriven = false;
    const RawPrescription map = tableOf({"SEED_KS_HA", "FERT_KG_HA", "rate"});
    QCOMPARE(feeds(ColumnPolicy(products, {}), map), QStringList({"1:SEED_KS_HA", "3:rate"}));
    const ColumnPolicy named(products, {"SEED_KS_HA", "FERT_KG_HA"});
    QCOMPARE(feeds(named, map), QStringList("1:SEED_KS_HA"));
}

void ColumnPolicyTest::feedsProductsFirstThatNoOtherFileFeeds()
{
    const RawPrescription map = tableOf({"rate1", "rate2"});
    QList<MachineProduct> products = machine();
    products[0].isFed = true;
    QCOMPARE(feeds(ColumnPolicy(products, {}), map), QStringList({"2:rate1", "3:rate2"}));
    products[1].isFed = true;
    products[2].isDriven = false;
    QCOMPARE(feeds(ColumnPolicy(products, {}), map), QStringList({"1:rate1", "2:rate2"}));
    // None of those that wait fits.
    products[0].isFed = false;
    QCOMPARE(feeds(ColumnPolicy(products, {}), tableOf({"RATE_KG_HA"})), QStringList("2:RATE_KG_HA"));
}

void ColumnPolicyTest::saysWhatItLeavesOut()
{
    QList<MachineProduct> products = machine();
    products[1].isDriven = false;
    const QString line = QStringLiteral("column \"B\" is left out, product 2 (Fertiliser) takes no prescription");
    const ColumnPolicy some(products, {"A", "B"});
    QCOMPARE(some.refusal(), QString());
    QCOMPARE(some.warnings(), QStringList(line));
    QCOMPARE(some.named(), QStringList({"A", QString()}));
    QCOMPARE(ColumnPolicy(products, {QString(), "B"}).refusal(), line);
}

void ColumnPolicyTest::refusesWhatNoFileCanMakeGood_data()
{
    QTest::addColumn<int>("products");
    QTest::addColumn<bool>("areDriven");
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QString>("reason");
    const QString noProduct = QStringLiteral("there is no product to load it for");
    QTest::newRow("no product") << 0 << true << QStringList("A") << noProduct;
    QTest::newRow("no product that a prescription may drive") << 3 << false << QStringList() << noProduct;
    QTest::newRow("more columns than products")
        << 2 << true << QStringList({"A", "B", "C"}) << "3 columns are named, but the machine has 2 products";
    QTest::newRow("empty names only") << 3 << true << QStringList({"", ""}) << "no column is named for any product";
    QTest::newRow("nothing") << 3 << true << QStringList({"A", "B"}) << QString();
}

void ColumnPolicyTest::refusesWhatNoFileCanMakeGood()
{
    QFETCH(int, products);
    QFETCH(bool, areDriven);
    QFETCH(QStringList, named);
    QList<MachineProduct> some = machine().mid(0, products);
    for (MachineProduct &product : some)
        product.isDriven = areDriven;
    QTEST(ColumnPolicy(some, named).refusal(), "reason");
}

void ColumnPolicyTest::prefersColumnsNamedAsRates()
{
    QCOMPARE(likely({column("Urea", {1, 2, 3, 1}), column("RATE_kg_", {230, 127, 23, 23}),
                     column("QT_kg", {2090, 1154, 209, 100})}),
             QStringList("2:RATE_kg_"));
    QCOMPARE(likely({column("rate_old", {none, none, none, none}), column("rate", {none, 5, none, none})}),
             QStringList("1:rate"));
}

void ColumnPolicyTest::passesOverWhatIsNoRateByItsContent_data()
{
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<bool>("isRate");
    QTest::newRow("rates") << QVector<double>{120, 80, 120, 60} << true;
    QTest::newRow("numbers of the records") << QVector<double>{1, 2, 3, 4} << false;
    QTest::newRow("numbers from zero") << QVector<double>{0, 1, 2, 3} << false;
    QTest::newRow("nothing but zero") << QVector<double>{0, 0, 0, 0} << false;
    QTest::newRow("the area in hectares") << QVector<double>{0.0200, 0.0400, 0.0800, 0.0101} << false;
    QTest::newRow("a total at one rate") << QVector<double>{4.0, 8.0, 16.0, 2.0} << false;
    QTest::newRow("places from west to east") << QVector<double>{11.1, 11.9, 11.5, 11.2} << false;
    QTest::newRow("places from south to north") << QVector<double>{48.1, 48.9, 48.5, 48.2} << false;
}

void ColumnPolicyTest::passesOverWhatIsNoRateByItsContent()
{
    QFETCH(QVector<double>, values);
    QFETCH(bool, isRate);
    QCOMPARE(likely({column("thing", std::vector<double>(values.begin(), values.end()))}).size(), isRate ? 1 : 0);
}

void ColumnPolicyTest::knowsAColumnOfAreasByThePolygonsLessTheirHoles()
{
    const ColumnPolicy policy(machine(), {});
    const RawPrescription areas = mapOf({column("thing", {0.02, 0.04, 0.08, 0.01})});
    QCOMPARE(policy.decide(areas, polygons()).error,
             QStringLiteral("has no column that looks like a rate; name one (its columns: thing)"));
    const RawPrescription amounts = mapOf({column("thing", {0.02, 0.04, 0.09, 0.01})});
    QCOMPARE(feeds(policy, amounts), QStringList("1:thing"));
}

void ColumnPolicyTest::takesEqualColumnsForOne()
{
    QCOMPARE(
        likely({column("Rate1", {1, 2, 2, none}), column("Rate2", {1, 2, 2, none}), column("Rate3", {1, 2, 3, 4})}),
        QStringList({"1:Rate1", "2:Rate3"}));
    QCOMPARE(likely({column("rate_l_ha"), column("rate_kg_ha")}), QStringList({"2:rate_kg_ha", "3:rate_l_ha"}));
}

void ColumnPolicyTest::takesWholeNumbersAsALastResort_data()
{
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<bool>("isRate");
    QTest::newRow("rates") << QVector<double>{100, 150, 150, 200} << true;
    QTest::newRow("a rate for each record") << QVector<double>{100, 150, 120, 200} << true;
    QTest::newRow("years") << QVector<double>{2019, 2020, 2020, 2019} << false;
    QTest::newRow("numbers of the records in any order") << QVector<double>{2, 4, 1, 3} << false;
}

void ColumnPolicyTest::takesWholeNumbersAsALastResort()
{
    QFETCH(QVector<double>, values);
    QFETCH(bool, isRate);
    const auto whole = [&values] {
        SourceColumn result = column("Urea", std::vector<double>(values.begin(), values.end()));
        result.isInteger = true;
        return result;
    };
    QCOMPARE(likely({whole()}), isRate ? QStringList("2:Urea") : QStringList());
    QCOMPARE(likely({whole(), column("thing")}), QStringList("1:thing"));
}

void ColumnPolicyTest::readsTheUnit_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("behind");
    QTest::addColumn<QString>("beside");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<RateSource::UnitFrom>("from");
    QTest::addColumn<double>("factor");
    using From = RateSource::UnitFrom;
    QTest::newRow("beside") << "Rate_kg_ha"
                            << "t/ha"
                            << "dt/ha"
                            << "dt/ha" << From::Column << 100.0;
    QTest::newRow("behind") << "Rate_kg_ha"
                            << "t/ha"
                            << ""
                            << "t/ha" << From::Text << 1000.0;
    QTest::newRow("name") << "Rate_g_m2"
                          << ""
                          << ""
                          << "g/m2" << From::Name << 10.0;
    QTest::newRow("none") << "Rate"
                          << ""
                          << ""
                          << "kg/ha" << From::Assumed << 1.0;
    QTest::newRow("unknown beside") << "Rate_t_ha"
                                    << ""
                                    << "bags"
                                    << "t/ha" << From::Name << 1000.0;
    QTest::newRow("unknown behind") << "Rate"
                                    << "bags"
                                    << ""
                                    << "kg/ha" << From::Assumed << 1.0;
}

void ColumnPolicyTest::readsTheUnit()
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
}

void ColumnPolicyTest::looksForUnitsBesideTheirOwnColumn()
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

void ColumnPolicyTest::takesTheOperatorsUnit()
{
    const RawPrescription map = tableOf({"FERT_kg_ha", "HERB_l_ha"});
    const ColumnPolicy policy(machine(), {}, {QString(), QStringLiteral("lbs/acre")});
    const auto decision = policy.decide(map, polygons());
    QCOMPARE(decision.sources.size(), 2);
    QCOMPARE(decision.sources.at(0).unit, QStringLiteral("lb/ac"));
    QCOMPARE(decision.sources.at(0).unitFrom, RateSource::UnitFrom::Operator);
    QCOMPARE(decision.sources.at(1).unit, QStringLiteral("L/ha"));
    QVERIFY(std::fabs(decision.feeds.front().factor - 1.12085116) < 1e-8);
}

void ColumnPolicyTest::refusesUnitsThatAreNone()
{
    QCOMPARE(ColumnPolicy(machine(), {}, {"", "bags"}).refusal(), QStringLiteral("\"bags\" is no unit of a rate"));
    QCOMPARE(ColumnPolicy(machine(), {}, {"", "", "", "kg/ha"}).refusal(),
             QStringLiteral("4 units are named, but the machine has 3 products"));
}

void ColumnPolicyTest::saysWhatItTakesForGranted_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("isNamed");
    QTest::addColumn<QString>("beside");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QList<MapFinding::Kind>>("kinds");
    using Kind = MapFinding::Kind;
    using Kinds = QList<Kind>;
    const QString unknown = QStringLiteral("the unit of column \"%1\" is not known, taken as 1000/ha");
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
        << QStringList("column \"SEED_kg_ha\" is in kg/ha, which does not fit product 1 (Seed); taken as 1000/ha")
        << Kinds{Kind::UnitMismatch};
}

void ColumnPolicyTest::saysWhatItTakesForGranted()
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

void ColumnPolicyTest::namesColumnsThatFitNoProduct()
{
    const QList<MachineProduct> seed = machine().mid(0, 1);
    const QString line =
        QStringLiteral("no product that a prescription may drive fits the unit of \"FERT_kg_ha\" (kg/ha)");
    QCOMPARE(ColumnPolicy(seed, {}).decide(tableOf({"FERT_kg_ha"}), polygons()).error, line);
    const auto some = ColumnPolicy(seed, {}).decide(tableOf({"FERT_kg_ha", "SEED_K_HA"}), polygons());
    QCOMPARE(some.error, QString());
    QCOMPARE(textsOf(some.findings), QStringList(line));
    QCOMPARE(some.findings.first().kind, MapFinding::Kind::UnitMismatch);
}

void ColumnPolicyTest::refusesColumnsWithoutRates_data()
{
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QString>("reason");
    QTest::newRow("likely") << QStringList() << "holds no rates: no record has one in RATE_A, RATE_B";
    QTest::newRow("named") << QStringList("RATE_B") << "column \"RATE_B\" holds no rates";
    QTest::newRow("one of those named") << QStringList({"zone", "RATE_A"}) << "column \"RATE_A\" holds no rates";
}

void ColumnPolicyTest::refusesColumnsWithoutRates()
{
    QFETCH(QStringList, columns);
    const std::vector<double> empty(4, none);
    SourceColumn zone = column("zone", {1, 2, 2, 2});
    zone.isInteger = true;
    const RawPrescription map = mapOf({column("RATE_A", empty), column("RATE_B", empty), std::move(zone)});
    QTEST(ColumnPolicy(machine(), columns).decide(map, polygons()).error, "reason");
}

void ColumnPolicyTest::tellsOfEntriesThatAreNoRates_data()
{
    QTest::addColumn<QList<int>>("unreadable");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("none") << QList<int>() << QStringList();
    QTest::newRow("one") << QList<int>({1}) << QStringList("1 entry of column \"rate\" is no rate and was left out");
    QTest::newRow("two") << QList<int>({1, 2})
                         << QStringList("2 entries of column \"rate\" are no rates and were left out");
}

void ColumnPolicyTest::tellsOfEntriesThatAreNoRates()
{
    QFETCH(QList<int>, unreadable);
    const RawPrescription map = mapOf({column("rate", {1, none, none, 1}, {unreadable.begin(), unreadable.end()}),
                                       column("other", anyRates, {0, 1, 2})});
    const QList<MachineProduct> products{product("Anything", DbGroupProductGroupInfo::UnknownRate)};
    const QList<MapFinding> findings = ColumnPolicy(products, {"rate"}).decide(map, polygons()).findings;
    QTEST(textsOf(findings), "texts");
    if (!findings.isEmpty()) {
        QCOMPARE(findings.first().kind, MapFinding::Kind::NotANumber);
        QCOMPARE(findings.first().records, unreadable);
    }
}

void ColumnPolicyTest::sharesNamedColumnsAmongFiles_data()
{
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QList<QStringList>>("shares");
    using Shares = QList<QStringList>;
    QTest::newRow("the first file that has it")
        << QStringList({"FERT", "seed", "BOTH"}) << Shares{{QString(), "seed", "BOTH"}, {"FERT"}};
    QTest::newRow("an empty name") << QStringList({"", "SEED", ""}) << Shares{{"", "SEED"}, {}};
}

void ColumnPolicyTest::sharesNamedColumnsAmongFiles()
{
    QFETCH(QStringList, named);
    const ColumnShares shares = ColumnPolicy::share({{"a.shp", {"SEED", "BOTH"}}, {"b.shp", {"BOTH", "FERT"}}}, named);
    QVERIFY2(shares.isOk(), qPrintable(shares.error));
    QTEST(shares.columns, "shares");
}

void ColumnPolicyTest::namesAColumnThatNoFileHas()
{
    const ColumnShares shares = ColumnPolicy::share({{"a.shp", {"SEED"}}, {"b.shp", {}}}, {"SEED", "NOPE"});
    QCOMPARE(shares.error, QStringLiteral("--columns: no column \"NOPE\" in a.shp, b.shp"));
    QVERIFY(shares.columns.isEmpty());
}

RXMAP_TEST(ColumnPolicyTest, Core)
#include "tst_columnpolicy.moc"
