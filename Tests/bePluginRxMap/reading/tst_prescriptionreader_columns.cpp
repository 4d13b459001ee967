#include "files.h"
#include "readertest.h"

#include <cmath>

class PrescriptionReaderColumnsTest : public ReaderTest {
    Q_OBJECT

private Q_SLOTS:
    void readsTextAsNumbersInTheCLocale();
    void readsWhatFollowsTheNumbersOfAText();
    void readsTextsThatAreTheSameInEveryRecord();
    void readsNamesInTheTablesOwnCodePage_data();
    void readsNamesInTheTablesOwnCodePage();
    void refusesATableOfTooManyColumns();
    void takesNegativeAndEndlessNumbersForNoRate();
    void takesANegativeZeroForZero();
    void readsOnlyTheWantedColumns();
    void readsAColumnThatSharesItsName();
    void readsShapesBesideAColumnOfTheirName();
    void refusesAColumnThatIsNotThere();
    void refusesAColumnThatHoldsNoNumbers_data();
    void refusesAColumnThatHoldsNoNumbers();
    void leavesTrueAndFalseOutOfTheLikelyColumns();
};

void PrescriptionReaderColumnsTest::readsTextAsNumbersInTheCLocale()
{
    const QByteArray before = setlocale(LC_ALL, nullptr);
    setlocale(LC_ALL, "de_DE.UTF-8");
    QLocale::setDefault(QLocale(QLocale::German));
    const bool isRead = read(fixture("text-rates.geojson"));
    setlocale(LC_ALL, before.constData());
    QLocale::setDefault(QLocale::c());
    QVERIFY(isRead);
    QCOMPARE(map.columns.size(), size_t(1));
    const SourceColumn &column = map.columns[0];
    QVERIFY(column.isText);
    QCOMPARE(column.values[0], 12.5);
    QCOMPARE(column.values[1], 7.0);
    QVERIFY(std::isnan(column.values[2]));
    QVERIFY(std::isnan(column.values[3]));
    QCOMPARE(column.unreadable.size(), size_t(1));
}

void PrescriptionReaderColumnsTest::readsWhatFollowsTheNumbersOfAText()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"rate", QStringLiteral("text")}};
    for (const char *text : {"80", "90,5 kg/ha", "32,000 kg/ha", "90 lb/ac", "70 KG per ha"})
        sketch.rows.append({squareText(11.0 + 0.1 * sketch.rows.size(), 48.0, 0.001), {QString::fromLatin1(text)}});
    QVERIFY(sketch.write(path("a.gpkg")));
    QVERIFY2(read(path("a.gpkg")), qPrintable(error));
    const SourceColumn &column = map.columns[0];
    QCOMPARE(column.unit, QStringLiteral("kg/ha"));
    QCOMPARE(column.values[0], 80.0);
    QCOMPARE(column.values[1], 90.5);
    QCOMPARE(column.ambiguous, QStringLiteral("32,000 kg/ha"));
    // A different unit than that of the records before.
    QVERIFY(std::isnan(column.values[3]));
    QCOMPARE(column.unreadable.size(), size_t(1));
    // The same unit, spelled differently.
    QCOMPARE(column.values[4], 70.0);
}

void PrescriptionReaderColumnsTest::readsTextsThatAreTheSameInEveryRecord()
{
    LayerSketch sketch;
    sketch.fields = {{"RATE", 1.0}, {"UNIT", QStringLiteral("text")}, {"NAME", QStringLiteral("text")}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {80.0, QStringLiteral("l/ha"), QStringLiteral("west")}},
                   {squareText(11.1, 48.0, 0.001), {80.0, QVariant(), QVariant()}},
                   {squareText(11.2, 48.0, 0.001), {90.0, QStringLiteral("L/HA"), QStringLiteral("east")}}};
    QVERIFY(sketch.write(path("a.shp")));
    QVERIFY2(read(path("a.shp"), {QStringLiteral("RATE")}), qPrintable(error));
    QCOMPARE(map.texts.size(), size_t(2));
    QCOMPARE(map.texts[0].name, QStringLiteral("UNIT"));
    QCOMPARE(map.texts[0].text, QStringLiteral("l/ha"));
    QVERIFY(!map.texts[0].isMixed);
    QVERIFY(map.texts[1].isMixed);
}

void PrescriptionReaderColumnsTest::readsNamesInTheTablesOwnCodePage_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::newRow("Latin-1") << QByteArray("D\xfcngung") << QString::fromUtf8("Düngung");
    QTest::newRow("Latin-1, letter at the end") << QByteArray("Qualit\xe9") << QString::fromUtf8("Qualité");
    QTest::newRow("code page 850") << QByteArray("D\x81ngung") << QString::fromUtf8("Düngung");
    QTest::newRow("code page 850, Spanish") << QByteArray("A\xa4"
                                                          "adido")
                                            << QString::fromUtf8("Añadido");
    QTest::newRow("UTF-8") << QByteArray("D\xc3\xbcngung") << QString::fromUtf8("Düngung");
    QTest::newRow("UTF-8, cut at ten bytes")
        << QByteArray("D\xc3\xbcngung\xc3\xa4") << QString::fromUtf8("Düngungä").left(7);
}

void PrescriptionReaderColumnsTest::readsNamesInTheTablesOwnCodePage()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    const QByteArray plain(qMin(10, bytes.size()), 'q');
    LayerSketch sketch;
    sketch.fields = {{plain.constData(), 1.0}, {"REMARK", QString(120, 'x')}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {80.0, QStringLiteral("west")}}};
    QVERIFY(sketch.write(path("a.shp")));
    QFile::remove(path("a.cpg"));
    QVERIFY(replaceIn("a.dbf", plain, bytes.left(plain.size())));
    // What the header says: "that of the writing computer", or nothing.
    for (const char codePage : {'\x57', '\0'}) {
        constexpr int codePagePlace = 29;
        QByteArray table = readFile(path("a.dbf"));
        table[codePagePlace] = codePage;
        writeFile(path("a.dbf"), table);
        QVERIFY2(read(path("a.shp"), {QStringLiteral("#1")}), qPrintable(error));
        QVERIFY2(map.columns[0].name.startsWith(name), qPrintable(map.columns[0].name));
        QCOMPARE(map.columns[0].values[0], 80.0);
    }
}

void PrescriptionReaderColumnsTest::refusesATableOfTooManyColumns()
{
    QByteArray properties;
    for (int i = 0; i < 10000; ++i)
        properties += (i == 0 ? "\"rate_" : ", \"rate_") + QByteArray::number(i) + "\": 1.5";
    writeFile(
        path("a.geojson"),
        "{\"type\": \"FeatureCollection\", \"features\": [{\"type\": \"Feature\", \"properties\": {" + properties
            + "}, \"geometry\": {\"type\": \"Polygon\", \"coordinates\": [[[11, 48], [11.001, 48], [11, 48.001], [11, "
              "48]]]}}]}");
    QVERIFY(!read(path("a.geojson")));
    QCOMPARE(error, QStringLiteral("has 10000 columns; files with more than 2048 are not read"));
}

void PrescriptionReaderColumnsTest::takesNegativeAndEndlessNumbersForNoRate()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {-9999.0}}, {squareText(11.1, 48.0, 0.001), {HUGE_VAL}}};
    QVERIFY(sketch.write(path("a.gpkg")));
    QVERIFY(read(path("a.gpkg")));
    QVERIFY(std::isnan(map.columns[0].values[0]));
    QVERIFY(std::isnan(map.columns[0].values[1]));
    QCOMPARE(map.columns[0].unreadable.size(), size_t(2));
}

void PrescriptionReaderColumnsTest::takesANegativeZeroForZero()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", QStringLiteral("text")}};
    sketch.rows = {{squareText(11.2, 48.0, 0.001), {QStringLiteral("-0.0")}}};
    QVERIFY(sketch.write(path("a.shp")));
    QVERIFY(read(path("a.shp")));
    QCOMPARE(map.columns[0].values[0], 0.0);
    QVERIFY(!std::signbit(map.columns[0].values[0]));
}

void PrescriptionReaderColumnsTest::readsOnlyTheWantedColumns()
{
    QVERIFY(read(fixture("three-zones.geojson"),
                 {QStringLiteral("area_ha"), QString(), QStringLiteral("SEED_k_ha"), QStringLiteral("area_ha")}));
    QCOMPARE(map.columns.size(), size_t(2));
    QCOMPARE(map.columns[0].name, QStringLiteral("area_ha"));
    QCOMPARE(map.columns[1].name, QStringLiteral("SEED_K_HA"));
}

void PrescriptionReaderColumnsTest::readsAColumnThatSharesItsName()
{
    LayerSketch sketch;
    sketch.fields = {{"RATE_A", 1.0}, {"RATE_B", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {80.0, 90.0}}};
    QVERIFY(sketch.write(path("a.shp")));
    QVERIFY(replaceIn("a.dbf", "RATE_B", "RATE_A"));
    QVERIFY2(read(path("a.shp"), {QStringLiteral("RATE_A")}), qPrintable(error));
    QCOMPARE(map.columnNames, QStringList({QStringLiteral("RATE_A"), QStringLiteral("RATE_A")}));
    QCOMPARE(map.columns[0].values[0], 80.0);
}

void PrescriptionReaderColumnsTest::readsShapesBesideAColumnOfTheirName()
{
    LayerSketch sketch;
    sketch.driver = "GPKG";
    sketch.fields = {{"RATE", 1.0}, {"OGR_GEOMETRY", QString()}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {80.0, QStringLiteral("cell")}}};
    QVERIFY(sketch.write(path("a.gpkg")));
    QVERIFY2(read(path("a.gpkg"), {QStringLiteral("RATE")}), qPrintable(error));
    QCOMPARE(map.rings.size(), size_t(1));
}

void PrescriptionReaderColumnsTest::refusesAColumnThatIsNotThere()
{
    QVERIFY(!read(fixture("three-zones.geojson"), {QStringLiteral("LIME")}));
    QVERIFY2(error.contains(QStringLiteral("\"LIME\"")) && error.contains(QStringLiteral("FERT_KG_HA")),
             qPrintable(error));
}

void PrescriptionReaderColumnsTest::refusesAColumnThatHoldsNoNumbers_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("a list") << QByteArray("[1.0, 2.0]");
    QTest::newRow("true") << QByteArray("true");
    QTest::newRow("false") << QByteArray("false");
}

void PrescriptionReaderColumnsTest::refusesAColumnThatHoldsNoNumbers()
{
    QFETCH(QByteArray, value);
    LayerSketch sketch;
    sketch.driver = "GeoJSON";
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}}};
    QVERIFY(sketch.write(path("a.geojson")));
    QVERIFY(replaceIn("a.geojson", "\"rate\": 1.0", "\"rate\": " + value));
    QVERIFY(!read(path("a.geojson"), {QStringLiteral("rate")}));
    QCOMPARE(error, QStringLiteral("column \"rate\" holds no numbers"));
}

void PrescriptionReaderColumnsTest::leavesTrueAndFalseOutOfTheLikelyColumns()
{
    writeFile(path("a.geojson"), R"({"type": "FeatureCollection", "features": [{"type": "Feature",
        "properties": {"rate": true, "rate_b": 7.5},
        "geometry": {"type": "Polygon", "coordinates": [[[11, 48], [11.001, 48], [11, 48.001], [11, 48]]]}}]})");
    QVERIFY2(read(path("a.geojson")), qPrintable(error));
    QCOMPARE(map.columns.size(), size_t(1));
    QCOMPARE(map.columns[0].name, QStringLiteral("rate_b"));
    QCOMPARE(map.columnNames, QStringList({QStringLiteral("rate"), QStringLiteral("rate_b")}));
}

RXMAP_TEST(PrescriptionReaderColumnsTest, Core)
#include "tst_prescriptionreader_columns.moc"
