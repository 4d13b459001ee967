#include "columnsketch.h"
#include "testbase.h"

using namespace ColumnSketch;

/// Which columns feed which products.
class ColumnPolicyTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void handsColumnsOut_data();
    void handsColumnsOut();
    void namesRateColumnsThatFeedNoProduct_data();
    void namesRateColumnsThatFeedNoProduct();
    void feedsOnlyProductsThatAPrescriptionMayDrive();
    void feedsProductsFirstThatNoOtherFileFeeds();
    void saysWhatItLeavesOut();
    void refusesWhatNoFileCanMakeGood_data();
    void refusesWhatNoFileCanMakeGood();
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
    QTEST(ColumnSketch::feeds(ColumnPolicy(machine(), named), tableOf(table)), "feeds");
}

void ColumnPolicyTest::namesRateColumnsThatFeedNoProduct_data()
{
    QTest::addColumn<QStringList>("table");
    QTest::addColumn<QStringList>("named");
    QTest::addColumn<QStringList>("warnings");
    const QStringList none;
    QStringList many;
    QStringList quoted;
    for (int number = 1; number <= 26; ++number)
        many.append(QStringLiteral("rate%1").arg(number));
    for (int number = 4; number <= 23; ++number)
        quoted.append(QStringLiteral("\"rate%1\"").arg(number));
    QTest::newRow("all feed") << QStringList(many.mid(0, 3)) << none << none;
    QTest::newRow("one") << QStringList(many.mid(0, 4)) << none << QStringList("column \"rate4\" feeds no product");
    QTest::newRow("two") << QStringList(many.mid(0, 5)) << none
                         << QStringList("columns \"rate4\", \"rate5\" feed no product");
    QTest::newRow("many") << many << none
                          << QStringList("columns " + quoted.join(", ") + " and 3 more feed no product");
    QTest::newRow("two that suit one product")
        << QStringList{"a_l_ha", "b_l_ha"} << none << QStringList("column \"b_l_ha\" feeds no product");
    QTest::newRow("left out by the operator") << many << QStringList("rate1") << none;
    QTest::newRow("guesses") << QStringList{"a", "b", "c", "d"} << none << none;
    QTest::newRow("what was applied, and a total")
        << QStringList{"Target_kg_ha", "Applied_kg_ha", "QT_kg"} << none << none;
}

void ColumnPolicyTest::namesRateColumnsThatFeedNoProduct()
{
    QFETCH(QStringList, table);
    QFETCH(QStringList, named);
    const auto decision = ColumnPolicy(machine(), named).decide(tableOf(table), polygons());
    QTEST(decision.warnings, "warnings");
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
    // None of the products still waiting fits.
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
    QCOMPARE(shares.error, QStringLiteral("no column \"NOPE\" in a.shp, b.shp"));
    QVERIFY(shares.columns.isEmpty());
}

RXMAP_TEST(ColumnPolicyTest, Core)
#include "tst_columnpolicy.moc"
