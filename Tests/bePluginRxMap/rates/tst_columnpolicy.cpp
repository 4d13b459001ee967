#include "columnpolicy.h"
#include "testbase.h"

#include <cmath>

namespace {

const double none = std::nan("");
const std::vector<double> anyRates = {5.0, 5.0, 6.0, 5.0};

SourceColumn column(const QString &name, std::vector<double> values = anyRates, int unreadable = 0)
{
    SourceColumn result;
    result.name = name;
    result.values = std::move(values);
    result.unreadable = unreadable;
    return result;
}

/// A file of four records.
RawPrescription mapOf(std::vector<SourceColumn> columns)
{
    RawPrescription map;
    map.records = 4;
    map.xs = {11.0, 12.0};
    map.ys = {48.0, 49.0};
    map.columns = std::move(columns);
    for (const SourceColumn &entry : map.columns)
        map.columnNames.append(entry.name);
    return map;
}

RawPrescription tableOf(const QStringList &names)
{
    std::vector<SourceColumn> columns;
    for (const QString &name : names)
        columns.push_back(column(name));
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
    row("one named for two products", "zone", "zone zone", "1:zone 2:zone");
    row("in the order of the products", "SEED_ks_ha FERT_kg_ha HERB_l_ha", "", "1:SEED_ks_ha 2:FERT_kg_ha 3:HERB_l_ha");
    row("in another order", "SEED_kg_ha HERB_l_ha FERT_kg_ha", "", "1:SEED_kg_ha 2:FERT_kg_ha 3:HERB_l_ha");
    row("fewer columns than products", "HERB_L_HA SEED_KS_HA", "", "1:SEED_KS_HA 3:HERB_L_HA");
    row("more columns than products", "a_l_ha b_l_ha c_l_ha d_l_ha", "", "1:b_l_ha 2:c_l_ha 3:a_l_ha");
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
    const RawPrescription map = tableOf({"SEED_KS_HA", "FERT_KG_HA"});
    QCOMPARE(feeds(ColumnPolicy(products, {}), map), QStringList({"1:SEED_KS_HA", "3:FERT_KG_HA"}));
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
    const QString none = QStringLiteral("there is no product to load it for");
    QTest::newRow("no product") << 0 << true << QStringList("A") << none;
    QTest::newRow("no product that a prescription may drive") << 3 << false << QStringList() << none;
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
    QTest::addColumn<int>("unreadable");
    QTest::addColumn<QStringList>("warnings");
    QTest::newRow("none") << 0 << QStringList();
    QTest::newRow("one") << 1 << QStringList("1 entry of column \"rate\" is no rate and was left out");
    QTest::newRow("two") << 2 << QStringList("2 entries of column \"rate\" are no rates and were left out");
}

void ColumnPolicyTest::tellsOfEntriesThatAreNoRates()
{
    QFETCH(int, unreadable);
    const RawPrescription map = mapOf({column("rate", {1, none, none, 1}, unreadable), column("other", anyRates, 3)});
    QTEST(ColumnPolicy(machine(), {"rate"}).decide(map, polygons()).warnings, "warnings");
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
