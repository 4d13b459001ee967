#include "files.h"
#include "layerwriter.h"
#include "shapefilecheck.h"
#include "testbase.h"

#include <QTemporaryDir>

class ShapefileCheckTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void findsNothingWrongWithAWholeShapefile();
    void takesPartsWithCapitalExtensions();
    void seesWhatIsWrongWithAPart_data();
    void seesWhatIsWrongWithAPart();
    void seesAMissingPart_data();
    void seesAMissingPart();
    void seesRowsThatAreMissing();
    void seesOtherKindsOfShapes_data();
    void seesOtherKindsOfShapes();

private:
    QString part(const char *extension) const
    {
        return folder->filePath(QStringLiteral("map.") + QLatin1String(extension));
    }
    QByteArray content(const char *extension) const;
    void replace(const char *extension, const QByteArray &content) const;
    QString problem() const { return ShapefileCheck::problem(part("shp")); }

    QScopedPointer<QTemporaryDir> folder;
};

void ShapefileCheckTest::init()
{
    TestBase::init();
    folder.reset(new QTemporaryDir);
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 4; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {10.0 * i}});
    QVERIFY(sketch.write(part("shp")));
}

QByteArray ShapefileCheckTest::content(const char *extension) const
{
    return readFile(part(extension));
}

void ShapefileCheckTest::replace(const char *extension, const QByteArray &bytes) const
{
    writeFile(part(extension), bytes);
}

void ShapefileCheckTest::findsNothingWrongWithAWholeShapefile()
{
    QCOMPARE(problem(), QString());
}

void ShapefileCheckTest::takesPartsWithCapitalExtensions()
{
    QVERIFY(QFile::rename(part("dbf"), part("DBF")));
    QVERIFY(QFile::rename(part("shx"), part("SHX")));
    QCOMPARE(problem(), QString());
}

void ShapefileCheckTest::seesWhatIsWrongWithAPart_data()
{
    QTest::addColumn<QByteArray>("extension");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty shapes") << QByteArray("shp") << 0 << "empty";
    QTest::newRow("shapes cut in the header") << QByteArray("shp") << 60 << "within its header";
    QTest::newRow("shapes cut later") << QByteArray("shp") << 500 << "is cut short: 500 of";
    QTest::newRow("index cut in the header") << QByteArray("shx") << 60 << "no usable .shx";
    QTest::newRow("table cut in the header") << QByteArray("dbf") << 20 << ".dbf beside it is cut short within";
    QTest::newRow("table cut later") << QByteArray("dbf") << 80 << ".dbf beside it is cut short: 80 of";
}

void ShapefileCheckTest::seesWhatIsWrongWithAPart()
{
    QFETCH(QByteArray, extension);
    QFETCH(int, size);
    QFETCH(QString, reason);
    replace(extension.constData(), content(extension.constData()).left(size));
    QVERIFY2(problem().contains(reason), qPrintable(problem()));
}

void ShapefileCheckTest::seesAMissingPart_data()
{
    QTest::addColumn<QByteArray>("extension");
    QTest::addColumn<QString>("reason");
    QTest::newRow("index") << QByteArray("shx") << "no usable .shx";
    QTest::newRow("table") << QByteArray("dbf") << "no .dbf";
}

void ShapefileCheckTest::seesAMissingPart()
{
    QFETCH(QByteArray, extension);
    QFETCH(QString, reason);
    QVERIFY(QFile::remove(part(extension.constData())));
    QVERIFY2(problem().contains(reason), qPrintable(problem()));
}

void ShapefileCheckTest::seesRowsThatAreMissing()
{
    QByteArray table = content("dbf");
    table[4] = 2;
    replace("dbf", table);
    QCOMPARE(problem(), QStringLiteral("the .dbf beside it has 2 rows for 4 shapes"));
}

void ShapefileCheckTest::seesOtherKindsOfShapes_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("reason");
    QTest::newRow("polygons") << 5 << "";
    QTest::newRow("polygons with heights") << 15 << "";
    QTest::newRow("polygons with measures") << 25 << "";
    QTest::newRow("none") << 0 << "holds no shapes";
    QTest::newRow("points") << 1 << "holds points, not polygons";
    QTest::newRow("lines") << 3 << "holds lines, not polygons";
    QTest::newRow("unknown") << 77 << "unknown kind 77";
}

void ShapefileCheckTest::seesOtherKindsOfShapes()
{
    QFETCH(int, kind);
    QFETCH(QString, reason);
    QByteArray shapes = content("shp");
    shapes[32] = static_cast<char>(kind);
    replace("shp", shapes);
    QCOMPARE(problem().isEmpty(), reason.isEmpty());
    QVERIFY2(problem().contains(reason), qPrintable(problem()));
    replace("shp", "this is no Shapefile but a text of more than one hundred bytes " + QByteArray(100, '.'));
    QCOMPARE(problem(), QStringLiteral("is no Shapefile"));
}

RXMAP_TEST(ShapefileCheckTest, Core)
#include "tst_shapefilecheck.moc"
