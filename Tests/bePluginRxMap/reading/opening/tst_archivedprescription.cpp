#include "files.h"
#include "gdalsession.h"
#include "layerwriter.h"
#include "prescriptionfile.h"
#include "testbase.h"

#include <QTemporaryDir>
#include <QtEndian>

#include <ogrsf_frmts.h>

/// Prescriptions in archives.
class ArchivedPrescriptionTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void opensThePrescriptionOfAnArchive_data();
    void opensThePrescriptionOfAnArchive();
    void refusesArchivesThatItCannotUse_data();
    void refusesArchivesThatItCannotUse();
    void refusesDamage_data();
    void refusesDamage();
    void takesTheJournalOfADatabaseAlong();
    void countsThePartsOfAShapefileTogether();
    void checksWhatIsStoredWithoutCompression();
    void opensTheDocumentOfAKmz_data();
    void opensTheDocumentOfAKmz();
    void leavesNothingBehind();

private:
    QString archive() const { return folder.filePath(QStringLiteral("fields.zip")); }
    /// How a message names a file of the archive for a command line.
    QString example(const char *inner) const { return QStringLiteral("\"%1/%2\"").arg(archive(), inner); }
    /// Packs files; "name=fixture" packs the file of that name in `files` under another one.
    bool pack(const QStringList &entries) const { return pack(archive(), entries); }
    bool pack(const QString &path, const QStringList &entries) const;
    QString errorOf(const QString &path) const;

    QTemporaryDir folder;
    QTemporaryDir files;
};

void ArchivedPrescriptionTest::initTestCase()
{
    LayerSketch sketch;
    sketch.fields = {{"rate", 1.0}};
    for (int i = 0; i < 40; ++i)
        sketch.rows.append({squareText(11.0 + 0.001 * i, 48.0, 0.001), {1.0 + i}});
    QVERIFY(sketch.write(files.filePath("a.shp")));
    sketch.driver = "GPKG";
    QVERIFY(sketch.write(files.filePath("a.gpkg")));
    sketch.driver = "LIBKML";
    QVERIFY(sketch.write(files.filePath("a.kml")));
    sketch.name = "other";
    QVERIFY(sketch.write(files.filePath("b.kml")));
    writeFile(files.filePath("links.kml"), "<kml><Document><NetworkLink/></Document></kml>");
    writeFile(files.filePath("a.json"), "{\"crop\": \"maize\"}");
}

void ArchivedPrescriptionTest::init()
{
    TestBase::init();
    QFile::remove(archive());
}

bool ArchivedPrescriptionTest::pack(const QString &path, const QStringList &entries) const
{
    QList<QPair<QString, QString>> packed;
    for (const QString &entry : entries)
        packed.append({entry.section('=', 0, 0), files.filePath(entry.section('=', -1))});
    return packFiles(path, packed);
}

QString ArchivedPrescriptionTest::errorOf(const QString &path) const
{
    const GdalSession session;
    PrescriptionFile file(path);
    return file.open(session) ? QStringLiteral("is opened") : file.error();
}

void ArchivedPrescriptionTest::opensThePrescriptionOfAnArchive_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("inner");
    QTest::addColumn<QString>("layer");
    const auto row = [](const char *title, const QStringList &entries, const char *inner, const char *layer) {
        QTest::newRow(title) << entries << inner << layer;
    };
    const QStringList shapes{"a.shp", "a.shx", "a.dbf", "a.prj"};
    const QStringList capitals{"NORTH/A.SHP=a.shp", "NORTH/A.SHX=a.shx", "NORTH/A.DBF=a.dbf", "NORTH/A.PRJ=a.prj"};
    const QStringList two = capitals + QStringList{"south/b.gpkg=a.gpkg"};
    row("Shapefile", shapes, "", "a");
    row("Shapefile in a folder, in capitals", capitals, "", "A");
    row("GeoPackage", QStringList{"a.gpkg"}, "", "layer");
    row("KML", QStringList{"doc.kml=a.kml", "files/a.png=a.json"}, "", "layer");
    row("beside a description", QStringList{"about.json=a.json", "a.gpkg", "__MACOSX/a.gpkg=a.json", "._a.gpkg=a.json"},
        "", "layer");
    row("beside an archive", QStringList{"old.zip=a.json", "a.gpkg"}, "", "layer");
    row("one of two", two, "/north/a.shp", "A");
    row("the other one", two, "/south/b.gpkg", "layer");
    row("the one in a folder", two, "/north", "A");
}

void ArchivedPrescriptionTest::opensThePrescriptionOfAnArchive()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, inner);
    QVERIFY(pack(entries));
    const GdalSession session;
    PrescriptionFile file(archive() + inner);
    QVERIFY2(file.open(session), qPrintable(file.error()));
    OGRLayer *layer = file.dataset().GetLayer(0);
    QTEST(QString::fromUtf8(layer->GetName()), "layer");
    QCOMPARE(layer->GetFeatureCount(), GIntBig(40));
    QVERIFY(layer->GetSpatialRef() != nullptr);
}

void ArchivedPrescriptionTest::refusesArchivesThatItCannotUse_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("inner");
    QTest::addColumn<QString>("reason");
    QTest::newRow("none") << QStringList{"a.txt=a.json", "old.zip=a.gpkg"} << ""
                          << "is an archive that holds no prescription";
    QTest::newRow("two")
        << QStringList{"a.gpkg", "b/b.kml=a.kml"} << ""
        << "is an archive that holds several prescriptions: a.gpkg, b/b.kml; open one by its path, such as "
            + example("a.gpkg");
    QTest::newRow("two in a folder") << QStringList{"a.gpkg", "b/b c.kml=a.kml", "b/d.gpkg=a.gpkg"} << "/b"
                                     << "is an archive that holds several prescriptions in \"b\": b/b c.kml, b/d.gpkg; "
                                        "open one by its path, such as "
            + example("b/b c.kml");
    QTest::newRow("in the order in which people read")
        << QStringList{"field 10.kml=a.kml", "Field 2.kml=a.kml", "b/a.kml"} << ""
        << "is an archive that holds several prescriptions: b/a.kml, Field 2.kml, field 10.kml; open one by its path, "
           "such as "
            + example("b/a.kml");
    QTest::newRow("several task data") << QStringList{"a/TASKDATA.XML=a.json", "b/taskdata.xml=a.json"} << ""
                                       << "is an archive that holds several prescriptions: a/TASKDATA.XML, "
                                          "b/taskdata.xml; open one by its path, such as "
            + example("a/TASKDATA.XML");
    QTest::newRow("none of that name") << QStringList{"a.gpkg"} << "/b.gpkg"
                                       << "is an archive that holds no prescription in \"b.gpkg\"";
    QTest::newRow("Shapefile without its table") << QStringList{"a.shp", "a.shx"} << ""
                                                 << "there is no .dbf beside it";
    QTest::newRow("in an archive that is in it") << QStringList{"old.zip=a.gpkg"} << "/old.zip/a.gpkg"
                                                 << "is an archive that holds no prescription in \"old.zip/a.gpkg\"";
}

void ArchivedPrescriptionTest::refusesArchivesThatItCannotUse()
{
    QFETCH(QStringList, entries);
    QFETCH(QString, inner);
    QVERIFY(pack(entries));
    QTEST(errorOf(archive() + inner), "reason");
}

void ArchivedPrescriptionTest::refusesDamage_data()
{
    QTest::addColumn<QByteArray>("part");
    QTest::addColumn<int>("place");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const QByteArray directory = "PK\x01\x02";
    const QByteArray end = "PK\x05\x06";
    const QByteArray none(4, '\0');
    QTest::newRow("a path that leaves it")
        << directory << 46 << QByteArray("../a.gpkg") << "the path of its entry \"../a.gpkg\" leaves the archive";
    QTest::newRow("a path with backslashes that leaves it")
        << directory << 46 << QByteArray("..\\a.gpkg") << "the path of its entry \"../a.gpkg\" leaves the archive";
    QTest::newRow("a path from the root")
        << directory << 46 << QByteArray("/in/a.gpk") << "the path of its entry \"/in/a.gpk\" leaves the archive";
    QTest::newRow("more than may be unpacked")
        << directory << 24 << QByteArray("\1\0\0\x10", 4) << "\"in/a.gpkg\" in it has more than 256 MB";
    QTest::newRow("more than it says") << directory << 24 << QByteArray("\x10\0\0\0", 4)
                                       << "\"in/a.gpkg\" in it is damaged";
    QTest::newRow("less than it says") << directory << 24 << QByteArray("\0\0\0\x08", 4)
                                       << "\"in/a.gpkg\" in it is damaged";
    QTest::newRow("another checksum") << directory << 16 << none << "\"in/a.gpkg\" in it is damaged";
    QTest::newRow("encrypted") << directory << 8 << QByteArray("\1\0", 2) << "\"in/a.gpkg\" in it is encrypted";
    QTest::newRow("packed otherwise") << directory << 10 << QByteArray("\x0c\0", 2)
                                      << "\"in/a.gpkg\" in it is packed in a way that is not known";
    QTest::newRow("elsewhere") << directory << 42 << QByteArray("\7\0\0\0", 4) << "\"in/a.gpkg\" in it is damaged";
    QTest::newRow("no directory") << directory << 0 << none << "is an archive with a damaged directory";
    QTest::newRow("too large a directory")
        << end << 12 << QByteArray("\0\0\0\x01", 4) << "is an archive with a damaged directory";
    QTest::newRow("a directory without end")
        << end << 12 << QByteArray("\0\0\0\x02", 4) << "is an archive of more than 10000 files";
    QTest::newRow("many files") << end << 8 << QByteArray("\xff\xff\xff\xff", 4)
                                << "is an archive of more than 10000 files";
    QTest::newRow("one of several parts") << end << 4 << QByteArray("\1\0", 2) << "is one part of an archive";
    QTest::newRow("cut short") << end << 0 << none << "is an archive that is cut short";
}

void ArchivedPrescriptionTest::refusesDamage()
{
    QFETCH(QByteArray, part);
    QFETCH(int, place);
    QFETCH(QByteArray, bytes);
    QVERIFY(pack({"in/a.gpkg=a.gpkg"}));
    QByteArray content = readFile(archive());
    const int begin = content.lastIndexOf(part);
    QVERIFY(begin > 0);
    content.replace(begin + place, bytes.size(), bytes);
    writeFile(archive(), content);
    QTEST(errorOf(archive()), "reason");
}

void ArchivedPrescriptionTest::takesTheJournalOfADatabaseAlong()
{
    const QString path = files.filePath(QStringLiteral("open.gpkg"));
    QVERIFY(QFile::copy(files.filePath(QStringLiteral("a.gpkg")), path));
    const GdalSession gdal;
    GDALDatasetUniquePtr written(GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_UPDATE));
    for (const char *statement : {"PRAGMA journal_mode = WAL", "DELETE FROM layer WHERE rate > 7"})
        written->ReleaseResultSet(written->ExecuteSQL(statement, nullptr, nullptr));
    QVERIFY(pack({"NORTH/A.GPKG=open.gpkg", "north/a.gpkg-wal=open.gpkg-wal"}));
    const QByteArray before = readFile(archive());
    PrescriptionFile file(archive());
    QVERIFY2(file.open(gdal), qPrintable(file.error()));
    QCOMPARE(file.dataset().GetLayer(0)->GetFeatureCount(), GIntBig(7));
    QCOMPARE(readFile(archive()), before);
}

void ArchivedPrescriptionTest::countsThePartsOfAShapefileTogether()
{
    QVERIFY(pack({"a%2.shp=a.shp", "a%2.shx=a.shx", "a%2.dbf=a.dbf"}));
    QByteArray content = readFile(archive());
    // Each part claims to hold 100 MB.
    int parts = 0;
    for (int at = content.indexOf("PK\x01\x02"); at >= 0; at = content.indexOf("PK\x01\x02", at + 1), ++parts)
        content.replace(at + 24, 4, QByteArray("\0\0\x40\6", 4));
    QCOMPARE(parts, 3);
    writeFile(archive(), content);
    QCOMPARE(errorOf(archive()), QStringLiteral("\"a%2.shp\" in it has more than 256 MB"));
}

void ArchivedPrescriptionTest::checksWhatIsStoredWithoutCompression()
{
    const QByteArray content = "{\"type\": \"FeatureCollection\", \"features\": []}";
    const auto number = [](quint32 value) {
        char bytes[4];
        qToLittleEndian(value, bytes);
        return QByteArray(bytes, sizeof bytes);
    };
    const auto size = static_cast<quint32>(content.size());
    // The checksum of these bytes, computed by another program.
    const QByteArray about = number(0xaa36bd3f) + number(size) + number(size) + QByteArray("\x9\0\0\0", 4);
    const QByteArray file = "PK\x03\x04" + QByteArray(10, '\0') + about + "a.geojson" + content;
    const QByteArray directory = "PK\x01\x02" + QByteArray(12, '\0') + about + QByteArray(14, '\0') + "a.geojson";
    const QByteArray end = "PK\x05\x06" + QByteArray("\0\0\0\0\1\0\1\0", 8)
        + number(static_cast<quint32>(directory.size())) + number(static_cast<quint32>(file.size()))
        + QByteArray(2, '\0');
    for (const bool isDamaged : {false, true}) {
        QByteArray whole = file + directory + end;
        if (isDamaged)
            whole.replace("[]", "{}");
        writeFile(archive(), whole);
        QCOMPARE(errorOf(archive()), isDamaged ? "\"a.geojson\" in it is damaged" : "is opened");
    }
}

void ArchivedPrescriptionTest::opensTheDocumentOfAKmz_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("opened");
    const QStringList document{"layers/b.kml=b.kml", "DOC.kml=a.kml", "layers/c.kml=b.kml"};
    QTest::newRow("beside others") << "a.kmz" << document << "layer";
    QTest::newRow("one that links to another")
        << "a.KMZ" << QStringList{"doc.kml=links.kml", "layers/b.kml=b.kml"} << "other";
    QTest::newRow("one that links to others")
        << "a.kmz" << QStringList{"doc.kml=links.kml", "b.kml", "c.kml=b.kml"}
        << "is an archive that holds several prescriptions: b.kml, c.kml; open one by its path, such as \""
            + folder.filePath("a.kmz/b.kml\"");
    QTest::newRow("in another archive")
        << "b.zip" << document
        << "is an archive that holds several prescriptions: DOC.kml, layers/b.kml, layers/c.kml; open one by its path, "
           "such as \""
            + folder.filePath("b.zip/DOC.kml\"");
}

void ArchivedPrescriptionTest::opensTheDocumentOfAKmz()
{
    QFETCH(QString, name);
    QFETCH(QStringList, entries);
    const QString path = folder.filePath(name);
    QVERIFY(pack(path, entries));
    const GdalSession session;
    PrescriptionFile file(path);
    const QString layer = file.open(session) ? QString::fromUtf8(file.dataset().GetLayer(0)->GetName()) : file.error();
    QFile::remove(path);
    QTEST(layer, "opened");
}

void ArchivedPrescriptionTest::leavesNothingBehind()
{
    QVERIFY(pack({"a.gpkg"}));
    const QTemporaryDir own;
    const QByteArray before = qgetenv("TMPDIR");
    qputenv("TMPDIR", own.path().toUtf8());
    const QDir temporary(own.path());
    int meanwhile = 0;
    QString error;
    {
        const GdalSession session;
        PrescriptionFile file(archive());
        file.open(session);
        error = file.error();
        meanwhile = temporary.entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size();
    }
    before.isEmpty() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    QCOMPARE(error, QString());
    QCOMPARE(meanwhile, 1);
    QVERIFY(temporary.isEmpty());
}

RXMAP_TEST(ArchivedPrescriptionTest, Core)
#include "tst_archivedprescription.moc"
