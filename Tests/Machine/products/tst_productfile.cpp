#include "productfile.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <sys/stat.h>

/// The machine's products from a file.
class TestProductFile : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void badFilesAreRefusedInOneLine_data();
    void badFilesAreRefusedInOneLine();
    void everyFieldIsRead();
    void onlyNameAndKindAreNeeded();
    void everyKindIsKnown_data();
    void everyKindIsKnown();
    void keysAreReadHoweverTheyAreWritten();
    void aListNeedsNoObjectAroundIt();
    void sixteenProductsAreTaken();
    void aMissingFileIsNamed();
    void onlyAPlainFileIsRead();
    void theStandardMachineHasThreeProducts();

private:
    static QByteArray products(int count)
    {
        QByteArrayList entries;
        for (int i = 0; i < count; ++i)
            entries.append("{\"name\": \"P\", \"kind\": \"weight\"}");
        return "[" + entries.join(",") + "]";
    }
};

void TestProductFile::badFilesAreRefusedInOneLine_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("mentioned");
    QTest::newRow("no JSON") << QByteArray("{\"products\": [") << "is no JSON list of products";
    QTest::newRow("nothing") << QByteArray() << "is no JSON list of products";
    QTest::newRow("a number alone") << QByteArray("2") << "is no JSON list of products";
    QTest::newRow("a text alone") << QByteArray("\"2\"") << "is no JSON list of products";
    QTest::newRow("no list") << QByteArray("{\"product\": []}") << "no list of products";
    QTest::newRow("list is a text") << QByteArray("{\"products\": \"three\"}") << "no list of products";
    QTest::newRow("empty list") << QByteArray("[]") << "describes 0 products";
    QTest::newRow("seventeen products") << products(17) << "describes 17 products";
    QTest::newRow("product is a number") << QByteArray("[7]")
                                         << "product 1: is 7; an object with \"name\" and \"kind\" is wanted";
    QTest::newRow("product is a text") << QByteArray(R"([{"name": "A", "kind": "count"}, "2"])")
                                       << "product 2: is \"2\"; an object with \"name\" and \"kind\" is wanted";
    QTest::newRow("product is nothing") << QByteArray("[null]") << "product 1: is null; an object";
    QTest::newRow("product is a list") << QByteArray("[[1, 2]]") << "product 1: is [1,2]; an object";
    QTest::newRow("product is a long text") << QByteArray("[\"" + QByteArray(500, 'x') + "\"]")
                                            << "product 1: is \"xxxxxxxxxxxxxxxxxxxxxxxxxxx...; an object";
    QTest::newRow("no name") << QByteArray(R"([{"kind": "count"}])") << "product 1: has no \"name\"";
    QTest::newRow("empty name") << QByteArray(R"([{"name": " ", "kind": "count"}])")
                                << "product 1: \"name\" is \" \"; a text is wanted";
    QTest::newRow("name is a number") << QByteArray(R"([{"name": 2, "kind": "count"}])")
                                      << "product 1: \"name\" is 2; a text is wanted";
    QTest::newRow("kind is a number") << QByteArray(R"([{"name": "A", "kind": 2}])")
                                      << "product 1: \"kind\" is 2; one of count, injection,";
    QTest::newRow("no kind") << QByteArray(R"([{"name": "A"}])") << "product 1: has no \"kind\"";
    QTest::newRow("unknown kind") << QByteArray(R"([{"name": "A", "kind": "length"}])")
                                  << "product 1: \"kind\" is \"length\"; one of count, injection, ";
    QTest::newRow("bin is a text") << QByteArray(R"([{"name": "A", "kind": "count", "bin": "2"}])")
                                   << "product 1: \"bin\" is \"2\"; a whole number from 1 to 99 is wanted";
    QTest::newRow("bin 0") << QByteArray(R"([{"name": "A", "kind": "count", "bin": 0}])") << "\"bin\"";
    QTest::newRow("half a bin") << QByteArray(R"([{"name": "A", "kind": "count", "bin": 1.5}])") << "\"bin\"";
    QTest::newRow("rate below zero") << QByteArray(R"([{"name": "A", "kind": "count", "defaultRate": -1}])")
                                     << "\"defaultRate\" is -1; a number from 0 to 1000000 is wanted";
    QTest::newRow("rate is a text") << QByteArray(R"([{"name": "A", "kind": "count", "defaultRate": "5"}])")
                                    << "\"defaultRate\" is \"5\"; a number from 0 to 1000000 is wanted";
    for (const char *key : {"defaultRate", "minRate", "maxRate"})
        QTest::addRow("%s that no machine brings out", key)
            << QByteArray("[{\"name\": \"A\", \"kind\": \"count\", \"") + key + "\": 1e39}]"
            << QStringLiteral("product 1: \"%1\" is 1e+39; a number from 0 to 1000000 is wanted").arg(key);
    QTest::newRow("control is a number") << QByteArray(R"([{"name": "A", "kind": "count", "underVra": 1}])")
                                         << "\"underVra\" is 1; true or false is wanted";
    QTest::newRow("unknown key") << QByteArray(R"([{"name": "A", "kind": "count", "colour": "red"}])")
                                 << "unknown key \"colour\"";
    QTest::newRow("least rate above the greatest")
        << QByteArray(R"([{"name": "A", "kind": "count", "minRate": 30, "maxRate": 20}])")
        << "product 1: its minimum rate of 30 is above its maximum of 20";
    QTest::newRow("dead time below zero") << QByteArray(R"([{"name": "A", "kind": "count", "deadTime": -1}])")
                                          << "\"deadTime\" is -1; a number from 0 is wanted";
    QTest::newRow("endless time constant")
        << QByteArray(R"([{"name": "A", "kind": "count", "timeConstant": 1e9}])") << "is longer than 60 s";
    QTest::newRow("no width") << QByteArray(R"({"width": 0, "products": [{"name": "A", "kind": "count"}]})")
                              << "\"width\" is 0; a number from 0.5 to 200 is wanted";
    QTest::newRow("a width like a place in a text")
        << QByteArray(R"({"width": "%3", "products": [{"name": "A", "kind": "count"}]})")
        << "\"width\" is \"%3\"; a number from 0.5 to 200 is wanted";
    QTest::newRow("no radius") << QByteArray(R"({"minRadius": 0, "products": [{"name": "A", "kind": "count"}]})")
                               << "\"minRadius\" is 0; a number from 0.1 to 200 is wanted";
    QTest::newRow("unknown key of the machine")
        << QByteArray(R"({"wheels": 4, "products": [{"name": "A", "kind": "count"}]})") << "unknown key \"wheels\"";
    QTest::newRow("second product") << QByteArray(R"([{"name": "A", "kind": "count"}, {"name": "B", "kind": "x"}])")
                                    << "product 2: \"kind\" is \"x\"; ";
}

void TestProductFile::badFilesAreRefusedInOneLine()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, mentioned);
    const Result<MachineSetup> result = ProductFile::parse(json, QStringLiteral("machine.json"));
    QVERIFY(!result.isOk());
    QVERIFY2(result.error.startsWith(QLatin1String("machine.json: ")), qPrintable(result.error));
    QVERIFY2(result.error.contains(mentioned), qPrintable(result.error));
    QVERIFY(!result.error.contains(QLatin1Char('\n')));
}

void TestProductFile::everyFieldIsRead()
{
    const Result<MachineSetup> result = ProductFile::parse(
        R"({"width": 24, "antennaOffset": -1.5, "minRadius": 7, "acceleration": 0.8,
            "products": [{"deadTime": 0.7, "timeConstant": 0.9, "minRate": 3, "maxRate": 30, "name": "Growth regulator", "shortName": "GR", "kind": "injection", "bin": 4,
            "defaultRate": 12.5, "underVra": false, "isCarrier": true}]})",
        QStringLiteral("machine.json"));
    QVERIFY2(result.isOk(), qPrintable(result.error));
    QCOMPARE(result.value.size.width, 24.0);
    QCOMPARE(result.value.size.antennaOffset, -1.5);
    QCOMPARE(result.value.size.minRadius, 7.0);
    QCOMPARE(result.value.size.acceleration, 0.8);
    const Product product = result.value.products.first();
    QCOMPARE(product.actuator.deadTime, 0.7);
    QCOMPARE(product.actuator.timeConstant, 0.9);
    QCOMPARE(product.actuator.minRate, 3.0);
    QCOMPARE(product.actuator.maxRate, 30.0);
    QCOMPARE(product.name, QStringLiteral("Growth regulator"));
    QCOMPARE(product.shortName, QStringLiteral("GR"));
    QVERIFY(product.kind == Product::Kind::Injection);
    QCOMPARE(product.bin, 4);
    QCOMPARE(product.defaultRate, 12.5);
    QVERIFY(!product.underVra);
    QVERIFY(product.isCarrier);
}

void TestProductFile::onlyNameAndKindAreNeeded()
{
    const Result<MachineSetup> result = ProductFile::parse(
        R"([{"name": "Seed", "kind": "count"}, {"name": "Fertiliser", "kind": "weight"}])", QStringLiteral("f"));
    QVERIFY2(result.isOk(), qPrintable(result.error));
    const Product second = result.value.products.at(1);
    QCOMPARE(second.shortName, QStringLiteral("Ferti"));
    QCOMPARE(second.bin, 2);
    QCOMPARE(second.defaultRate, 0.0);
    QVERIFY(second.underVra);
    QVERIFY(!second.isCarrier);
    QCOMPARE(second.actuator.deadTime, Product::usualActuator(Product::Kind::Weight).deadTime);
}

void TestProductFile::everyKindIsKnown_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("count") << int(Product::Kind::Count);
    QTest::newRow("ratio") << int(Product::Kind::Ratio);
    QTest::newRow("injection") << int(Product::Kind::Injection);
    QTest::newRow("volume") << int(Product::Kind::Volume);
    QTest::newRow("weight") << int(Product::Kind::Weight);
    QTest::newRow("pressure") << int(Product::Kind::Pressure);
    QTest::newRow("unknown") << int(Product::Kind::Unknown);
    QTest::newRow("Weight") << int(Product::Kind::Weight);
}

void TestProductFile::everyKindIsKnown()
{
    QFETCH(int, kind);
    const QByteArray json = QByteArray(R"([{"name": "A", "kind": ")") + QTest::currentDataTag() + "\"}]";
    const Result<MachineSetup> result = ProductFile::parse(json, QStringLiteral("f"));
    QVERIFY2(result.isOk(), qPrintable(result.error));
    QCOMPARE(int(result.value.products.first().kind), kind);
}

void TestProductFile::keysAreReadHoweverTheyAreWritten()
{
    const Result<MachineSetup> result = ProductFile::parse(
        R"([{"Name": "A", "KIND": "volume", "default rate": 3}, {"name": "B", "kind": "volume", "default_rate": 4}])",
        QStringLiteral("f"));
    QVERIFY2(result.isOk(), qPrintable(result.error));
    QCOMPARE(result.value.products.at(0).defaultRate, 3.0);
    QCOMPARE(result.value.products.at(1).defaultRate, 4.0);
}

void TestProductFile::aListNeedsNoObjectAroundIt()
{
    QCOMPARE(ProductFile::parse(products(2), QStringLiteral("f")).value.products.size(), 2);
    QCOMPARE(ProductFile::parse("{\"products\": " + products(2) + "}", QStringLiteral("f")).value.products.size(), 2);
}

void TestProductFile::sixteenProductsAreTaken()
{
    QCOMPARE(ProductFile::parse(products(16), QStringLiteral("f")).value.products.size(), 16);
}

void TestProductFile::aMissingFileIsNamed()
{
    const Result<MachineSetup> result = ProductFile::read(QStringLiteral("/no/such/machine.json"));
    QVERIFY2(result.error.startsWith(QLatin1String("/no/such/machine.json: ")), qPrintable(result.error));
}

void TestProductFile::onlyAPlainFileIsRead()
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(QStringLiteral("pipe"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(ProductFile::read(QStringLiteral("/dev/null")).error, QStringLiteral("/dev/null: is no plain file"));
    QCOMPARE(ProductFile::read(folder.path()).error, folder.path() + QStringLiteral(": is a folder, not a file"));
    QCOMPARE(ProductFile::read(pipe).error, pipe + QStringLiteral(": is no plain file"));
}

void TestProductFile::theStandardMachineHasThreeProducts()
{
    const Products standard = ProductFile::standard();
    QCOMPARE(standard.size(), 3);
    for (int i = 0; i < standard.size(); ++i) {
        QVERIFY(!standard.at(i).name.isEmpty());
        QVERIFY(!standard.at(i).shortName.isEmpty());
        QCOMPARE(standard.at(i).bin, i + 1);
        QVERIFY(standard.at(i).underVra);
    }
}

RXMAP_TEST(TestProductFile, None)
#include "tst_productfile.moc"
