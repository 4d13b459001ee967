#include "productfile.h"
#include "suggestedproducts.h"
#include "testbase.h"

#include <limits>

Q_DECLARE_METATYPE(ColumnProduct)

/// The products that a file's columns suggest for the machine.
class TestSuggestedProducts : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void columnsBecomeProducts_data();
    void columnsBecomeProducts();
    void thereAreNeverFewerThanBefore();
    void allButTheNameIsThatOfTheStandardProductOfTheKind();
    void shortNamesTellProductsApart();
    void ratesFitThoseOfTheColumn_data();
    void ratesFitThoseOfTheColumn();
};

void TestSuggestedProducts::columnsBecomeProducts_data()
{
    using Info = DbGroupProductGroupInfo;
    QTest::addColumn<QList<ColumnProduct>>("columns");
    QTest::addColumn<QStringList>("products");
    const auto row = [](const char *tag, const QList<ColumnProduct> &columns, const QStringList &products) {
        QTest::newRow(tag) << columns << products;
    };
    row("none", {}, {"Seed", "Fertiliser", "Herbicide"});
    row("one", {{"Urea", Info::WeightRate, 1}}, {"Urea", "Seed", "Herbicide"});
    row("two of a kind", {{"Urea", Info::WeightRate, 1}, {"Lime", Info::WeightRate, 2}}, {"Urea", "Lime", "Seed"});
    row("all kinds but one name", {{"seed", Info::WeightRate, 1}, {"UAN", Info::VolumeRate, 2}},
        {"seed", "UAN", "Fertiliser"});
    row("a gap", {{"UAN", Info::VolumeRate, 2}}, {"Seed", "UAN", "Fertiliser"});
    row("more gaps than there are others", {{"UAN", Info::VolumeRate, 6}},
        {"Seed", "Fertiliser", "Herbicide", "Product 4", "Product 5", "UAN"});
    row("one that its column left", {{"", Info::WeightRate, 1}}, {"Fertiliser", "Seed", "Herbicide"});
    row("the first of two", {{"", Info::VolumeRate, 1}, {"Urea", Info::WeightRate, 2}}, {"Fertiliser", "Urea", "Seed"});
    QList<ColumnProduct> many;
    QStringList names;
    for (int number = 1; number <= 20; ++number) {
        many.append({QStringLiteral("P%1").arg(number), Info::WeightRate, number});
        if (number <= ProductFile::maxProducts)
            names.append(many.last().name);
    }
    row("more than a terminal holds", many, names);
}

void TestSuggestedProducts::columnsBecomeProducts()
{
    QFETCH(QList<ColumnProduct>, columns);
    QStringList names;
    const Products products = SuggestedProducts::of(columns);
    for (const Product &product : products) {
        names.append(product.name);
        QCOMPARE(product.bin, names.size());
        QVERIFY(product.underVra);
    }
    QTEST(names, "products");
}

void TestSuggestedProducts::thereAreNeverFewerThanBefore()
{
    const Products products = SuggestedProducts::of({{"UAN", DbGroupProductGroupInfo::VolumeRate, 1}}, 5);
    QCOMPARE(products.size(), 5);
    QCOMPARE(products.first().name, QStringLiteral("UAN"));
    QCOMPARE(products.last().name, QStringLiteral("Product 5"));
}

void TestSuggestedProducts::allButTheNameIsThatOfTheStandardProductOfTheKind()
{
    const Product made = SuggestedProducts::of({{"Ammonium nitrate", DbGroupProductGroupInfo::WeightRate, 1}}).first();
    const Product standard = ProductFile::standard().at(1);
    QCOMPARE(made.shortName, QStringLiteral("Ammon"));
    QCOMPARE(int(made.kind), int(standard.kind));
    QCOMPARE(made.defaultRate, standard.defaultRate);
    QCOMPARE(made.actuator.maxRate, standard.actuator.maxRate);
}

void TestSuggestedProducts::shortNamesTellProductsApart()
{
    QList<ColumnProduct> columns;
    for (const char *name : {"Mass", "Volume", "Mass 2", "Volume 2", "Seeds"})
        columns.append({QLatin1String(name), DbGroupProductGroupInfo::WeightRate, columns.size() + 1});
    QStringList names;
    const Products products = SuggestedProducts::of(columns);
    for (const Product &product : products)
        names.append(product.shortName);
    QCOMPARE(names, QStringList({"Mass", "Volum", "Mass3", "Volu4", "Seeds"}));
}

void TestSuggestedProducts::ratesFitThoseOfTheColumn_data()
{
    constexpr double none = std::numeric_limits<double>::quiet_NaN();
    QTest::addColumn<double>("typical");
    QTest::addColumn<double>("given");
    QTest::addColumn<double>("defaultRate");
    QTest::addColumn<double>("least");
    QTest::addColumn<double>("greatest");
    QTest::newRow("not loaded") << none << none << 150.0 << 10.0 << 20000.0;
    QTest::newRow("seed by weight") << 20.0 << none << 20.0 << 2.0 << 20000.0;
    QTest::newRow("fertiliser") << 180.0 << none << 180.0 << 10.0 << 20000.0;
    QTest::newRow("manure") << 30000.0 << none << 30000.0 << 10.0 << 300000.0;
    QTest::newRow("nothing put out") << 0.0 << none << 0.0 << 10.0 << 20000.0;
    QTest::newRow("given by the file") << 4.0 << 0.0 << 0.0 << 0.4 << 20000.0;
    QTest::newRow("given beyond ten times the mean") << 150.0 << 45000.0 << 45000.0 << 10.0 << 45000.0;
    QTest::newRow("given below a tenth of the mean") << 150.0 << 3.0 << 3.0 << 3.0 << 20000.0;
}

void TestSuggestedProducts::ratesFitThoseOfTheColumn()
{
    QFETCH(double, typical);
    QFETCH(double, given);
    const Product made =
        SuggestedProducts::of({{"Wheat", DbGroupProductGroupInfo::WeightRate, 1, typical, given}}).first();
    QTEST(made.defaultRate, "defaultRate");
    QTEST(made.actuator.minRate, "least");
    QTEST(made.actuator.maxRate, "greatest");
}

RXMAP_TEST(TestSuggestedProducts, None)
#include "tst_suggestedproducts.moc"
