#include "files.h"
#include "gdalsession.h"
#include "layerwriter.h"
#include "prescriptionfile.h"
#include "testbase.h"

#include <QTemporaryDir>

#include <arpa/inet.h>
#include <ogrsf_frmts.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

/// Listens for callers on a port of this computer.
class ListeningPort {
public:
    ListeningPort()
        : handle(socket(AF_INET, SOCK_STREAM, 0))
    {
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t size = sizeof address;
        auto *plain = reinterpret_cast<sockaddr *>(&address);
        isOpen = bind(handle, plain, size) == 0 && listen(handle, 4) == 0 && getsockname(handle, plain, &size) == 0;
    }
    ~ListeningPort() { close(handle); }

    bool isListening() const { return isOpen; }
    int number() const { return ntohs(address.sin_port); }
    bool hasBeenCalled() const
    {
        pollfd waiting{handle, POLLIN, 0};
        return poll(&waiting, 1, 0) > 0;
    }

private:
    Q_DISABLE_COPY(ListeningPort)

    int handle;
    sockaddr_in address{};
    bool isOpen = false;
};

QByteArray bigEndian(quint32 number)
{
    const quint32 swapped = htonl(number);
    return {reinterpret_cast<const char *>(&swapped), sizeof swapped};
}

/// The journal of a change to a database that held `before`, as it exists while the change is going on: all pages, each
/// with its number and the sum of every 200th byte, counted from its end.
QByteArray rollbackJournal(const QByteArray &before)
{
    const int pageSize = (quint8(before.at(16)) << 8) + quint8(before.at(17));
    const int pages = before.size() / pageSize;
    QByteArray journal = QByteArray::fromHex("d9d505f920a163d7") + bigEndian(quint32(pages)) + bigEndian(0)
        + bigEndian(quint32(pages)) + bigEndian(512) + bigEndian(quint32(pageSize));
    journal.append(QByteArray(512 - journal.size(), '\0'));
    for (int page = 0; page < pages; ++page) {
        const QByteArray content = before.mid(page * pageSize, pageSize);
        quint32 sum = 0;
        for (int i = pageSize - 200; i > 0; i -= 200)
            sum += quint8(content.at(i));
        journal += bigEndian(quint32(page + 1)) + content + bigEndian(sum);
    }
    return journal;
}

} // namespace

/// How a file is opened; its content is tested with the classes that read it.
class PrescriptionFileTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void takesAPathForTheNameOfAFile_data();
    void takesAPathForTheNameOfAFile();
    void opensNoConnections_data();
    void opensNoConnections();
    void writesNothingBesideTheFile_data();
    void writesNothingBesideTheFile();
    void readsWhatStandsInAJournal_data();
    void readsWhatStandsInAJournal();
    void takesBackAChangeThatWasBrokenOff();
    void saysWhyAFileCannotBeOpened();
    void reachesForNoNetwork();

private:
    static LayerSketch sketch(const char *driver);
    QString write(const char *driver, const QString &name);
    static GDALDatasetUniquePtr change(const QString &path, std::initializer_list<const char *> statements);
    /// NaN when the file cannot be opened.
    static double rateIn(const QString &path);

    QTemporaryDir folder;
};

LayerSketch PrescriptionFileTest::sketch(const char *driver)
{
    LayerSketch sketch;
    sketch.driver = driver;
    sketch.fields = {{"rate", 1.0}};
    sketch.rows = {{squareText(11.0, 48.0, 0.001), {1.0}}};
    return sketch;
}

/// Written under a plain name first: the test's own writing must not stumble over what it tests.
QString PrescriptionFileTest::write(const char *driver, const QString &name)
{
    const QString plain = folder.filePath(QStringLiteral("plain.") + name.section(QLatin1Char('.'), -1));
    const QString path = folder.filePath(name);
    QFile::remove(path);
    const bool isWritten = sketch(driver).write(plain) && QFile::rename(plain, path);
    QFile::remove(folder.filePath(QStringLiteral("plain.xsd")));
    return isWritten ? path : QString();
}

GDALDatasetUniquePtr PrescriptionFileTest::change(const QString &path, std::initializer_list<const char *> statements)
{
    GDALDatasetUniquePtr written(GDALDataset::Open(path.toUtf8().constData(), GDAL_OF_VECTOR | GDAL_OF_UPDATE));
    for (const char *statement : statements)
        written->ReleaseResultSet(written->ExecuteSQL(statement, nullptr, nullptr));
    return written;
}

double PrescriptionFileTest::rateIn(const QString &path)
{
    const GdalSession session;
    PrescriptionFile file(path);
    const bool isOpen = file.open(session);
    const OGRFeatureUniquePtr record(isOpen ? file.dataset().GetLayer(0)->GetNextFeature() : nullptr);
    return record ? record->GetFieldAsDouble(0) : qQNaN();
}

void PrescriptionFileTest::takesAPathForTheNameOfAFile_data()
{
    QTest::addColumn<QByteArray>("driver");
    QTest::addColumn<QString>("name");
    const struct Format {
        const char *driver;
        const char *extension;
    } formats[] = {{"GPKG", "gpkg"},  {"GeoJSON", "geojson"}, {"GeoJSONSeq", "geojsonl"},
                   {"LIBKML", "kml"}, {"FlatGeobuf", "fgb"},  {"GML", "gml"}};
    for (const char *stem : {"a%41b", "a#b?c&d", "it's \"it\"", "two\nlines", "{a}b}", "a,xsd=b", "GPKG:a",
                             "PG:dbname=a", "http:a", "D\u00fcngung", "a*", "|x", "a;b", " "}) {
        for (const Format &format : formats)
            QTest::addRow("%s.%s", stem, format.extension)
                << QByteArray(format.driver)
                << QString::fromUtf8(stem) + QLatin1Char('.') + QLatin1String(format.extension);
    }
}

void PrescriptionFileTest::takesAPathForTheNameOfAFile()
{
    QFETCH(QByteArray, driver);
    QFETCH(QString, name);
    const QString path = write(driver.constData(), name);
    QVERIFY(!path.isEmpty());
    const GdalSession session;
    PrescriptionFile file(path);
    QVERIFY2(file.open(session), qPrintable(file.error()));
    QCOMPARE(file.dataset().GetLayer(0)->GetFeatureCount(), GIntBig(1));
}

void PrescriptionFileTest::opensNoConnections_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path : {"http://127.0.0.1/a.geojson", "/vsicurl/http://127.0.0.1/a.geojson", "PG:dbname=fields",
                             "/vsimem/a.geojson", "GeoJSON:{\"type\": \"FeatureCollection\", \"features\": []}",
                             "{\"type\": \"FeatureCollection\", \"features\": []}", "/vsizip//tmp/a.zip", ""})
        QTest::newRow(path) << QString::fromUtf8(path);
}

void PrescriptionFileTest::opensNoConnections()
{
    QFETCH(QString, path);
    const GdalSession session;
    PrescriptionFile file(path);
    QVERIFY(!file.open(session));
    QCOMPARE(file.error(), QStringLiteral("there is no such file"));
}

void PrescriptionFileTest::writesNothingBesideTheFile_data()
{
    QTest::addColumn<QByteArray>("driver");
    QTest::addColumn<QString>("name");
    QTest::newRow("GML") << QByteArray("GML") << "a.gml";
    QTest::newRow("GeoPackage with a journal") << QByteArray("GPKG") << "journal.gpkg";
}

void PrescriptionFileTest::writesNothingBesideTheFile()
{
    QFETCH(QByteArray, driver);
    QFETCH(QString, name);
    const QString path = write(driver.constData(), name);
    QVERIFY(!path.isEmpty());
    if (driver == "GPKG") {
        const GdalSession session;
        change(path, {"PRAGMA journal_mode = WAL"});
    }
    const QByteArray before = readFile(path);
    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    QStringList filesMeanwhile;
    {
        const GdalSession session;
        PrescriptionFile file(path);
        QVERIFY2(file.open(session), qPrintable(file.error()));
        QVERIFY(OGRFeatureUniquePtr(file.dataset().GetLayer(0)->GetNextFeature()));
        filesMeanwhile = QDir(folder.path()).entryList(QDir::Files);
    }
    QCOMPARE(filesMeanwhile, files);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files), files);
    QCOMPARE(readFile(path), before);
}

void PrescriptionFileTest::readsWhatStandsInAJournal_data()
{
    QTest::addColumn<bool>("isLeftBehind");
    QTest::newRow("of a program that goes on") << false;
    QTest::newRow("of one that was ended, in a folder that cannot be written") << true;
}

void PrescriptionFileTest::readsWhatStandsInAJournal()
{
    QFETCH(bool, isLeftBehind);
    const QString open = write("GPKG", QStringLiteral("open.gpkg"));
    const GdalSession session;
    const GDALDatasetUniquePtr written = change(open, {"PRAGMA journal_mode = WAL", "UPDATE layer SET rate = 7"});
    QVERIFY(QFile::exists(open + QStringLiteral("-wal")));
    const QTemporaryDir others;
    QString path = open;
    if (isLeftBehind) {
        path = others.filePath(QStringLiteral("left.gpkg"));
        QVERIFY(QFile::copy(open, path) && QFile::copy(open + QStringLiteral("-wal"), path + QStringLiteral("-wal")));
        QFile::setPermissions(others.path(), QFile::ReadOwner | QFile::ExeOwner);
    }
    const QByteArray before = readFile(path) + readFile(path + QStringLiteral("-wal"));
    const QStringList files = QFileInfo(path).dir().entryList(QDir::Files);
    QCOMPARE(rateIn(path), 7.0);
    QCOMPARE(readFile(path) + readFile(path + QStringLiteral("-wal")), before);
    QCOMPARE(QFileInfo(path).dir().entryList(QDir::Files), files);
    QFile::setPermissions(others.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void PrescriptionFileTest::takesBackAChangeThatWasBrokenOff()
{
    const QString path = write("GPKG", QStringLiteral("broken-off.gpkg"));
    const QByteArray before = readFile(path);
    const QString journal = path + QStringLiteral("-journal");
    {
        const GdalSession session;
        change(path, {"UPDATE layer SET rate = 7"});
    }
    QCOMPARE(rateIn(path), 7.0);
    const QByteArray after = readFile(path);
    QVERIFY(after.size() == before.size() && !QFile::exists(journal));
    writeFile(journal, rollbackJournal(before));
    QCOMPARE(rateIn(path), 1.0);
    QCOMPARE(readFile(path), after);
    QCOMPARE(readFile(journal), rollbackJournal(before));
}

void PrescriptionFileTest::saysWhyAFileCannotBeOpened()
{
    if (geteuid() == 0)
        QSKIP("who may do everything can open everything");
    const QString path = write("GeoJSON", QStringLiteral("rates.geojson"));
    QVERIFY(QFile::setPermissions(path, {}));
    const GdalSession session;
    PrescriptionFile file(path);
    QVERIFY(!file.open(session));
    QCOMPARE(file.error(), QStringLiteral("cannot be opened: Permission denied"));
}

void PrescriptionFileTest::reachesForNoNetwork()
{
    const ListeningPort port;
    QVERIFY(port.isListening());
    const QString path = write("GML", QStringLiteral("web.gml"));
    QFile gml(path);
    QVERIFY(gml.open(QIODevice::ReadWrite));
    QByteArray text = gml.readAll();
    const QByteArray address = "http://127.0.0.1:" + QByteArray::number(port.number());
    text.replace("ogr:FeatureCollection", "wfs:FeatureCollection");
    text.replace("http://ogr.maptools.org/ plain.xsd",
                 "http://ogr.maptools.org/ " + address
                     + "/wfs?SERVICE=WFS&amp;VERSION=1.1.0&amp;REQUEST=DescribeFeatureType&amp;TYPENAME=layer");
    text.replace("xmlns:gml=",
                 "xmlns:xlink=\"http://www.w3.org/1999/xlink\" xmlns:wfs=\"http://www.opengis.net/wfs\" "
                 "xmlns:gml=");
    text.replace("<gml:Polygon", "<gml:Polygon xlink:href=\"" + address + "/polygon.xml#a\"");
    QVERIFY(text.contains("DescribeFeatureType"));
    QVERIFY(gml.resize(0) && gml.seek(0) && gml.write(text) == text.size());
    gml.close();
    const GdalSession session;
    PrescriptionFile file(path);
    QVERIFY2(file.open(session), qPrintable(file.error()));
    QVERIFY(!port.hasBeenCalled());
}

RXMAP_TEST(PrescriptionFileTest, Core)
#include "tst_prescriptionfile.moc"
