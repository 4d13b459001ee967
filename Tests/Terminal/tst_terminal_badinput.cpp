#include "fieldscene.h"
#include "fieldview.h"
#include "files.h"
#include "layerwriter.h"
#include "machine.h"
#include "terminalhost.h"
#include "terminalwindow.h"
#include "testbase.h"

#include <QFile>
#include <QTemporaryDir>

#include <limits>

namespace {

/// A Shapefile of four cells with the rates 1 to 4.
LayerSketch cells()
{
    LayerSketch sketch;
    sketch.fields = {{"RATE", 1.0}};
    for (int i = 0; i < 4; ++i)
        sketch.rows.append({squareText(10.0 + 0.001 * i, 50.0, 0.001), {1.0 + i}});
    return sketch;
}

/// The same cells, but the first one has the given geometry.
LayerSketch cellsWith(const QString &geometry)
{
    LayerSketch sketch = cells();
    sketch.rows.first().geometry = geometry;
    return sketch;
}

/// Overwrites the easting of the first vertex of the first polygon of a Shapefile.
bool setFirstEasting(const QString &path, double value)
{
    // The header, the record's header, kind and box of the shape, its counts and its one part.
    const qint64 place = 100 + 8 + 4 + 32 + 8 + 4;
    QFile file(path);
    return file.open(QIODevice::ReadWrite) && file.seek(place)
        && file.write(reinterpret_cast<const char *>(&value), sizeof value) == sizeof value;
}

} // namespace

/// A bad prescription leaves the one loaded before as it was.
class TestTerminalBadInput : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void whatIsRefusedLeavesTheMapBefore_data();
    void whatIsRefusedLeavesTheMapBefore();
    void whatIsCountedLeavesTheMapBefore_data();
    void whatIsCountedLeavesTheMapBefore();

private:
    QString write(const LayerSketch &sketch, const QString &name);
    QString writeText(const QString &name);
    /// The cells with a file cut short, a shorter table, no table, or another first coordinate; empty if writing
    /// failed.
    QString truncated(const QString &name);
    QString withTableOf(int rows, const QString &name);
    QString withoutTable(const QString &name);
    QString withFirstEasting(double value, const QString &name);
    /// The earlier map is still drawn, answers, and stands in the broker and in the legend as before.
    void expectMapBefore();

    QTemporaryDir folder;
    QScopedPointer<TerminalHost> host;
    QColor before;
};

QString TestTerminalBadInput::write(const LayerSketch &sketch, const QString &name)
{
    const QString path = folder.filePath(name);
    return sketch.write(path) ? path : QString();
}

QString TestTerminalBadInput::writeText(const QString &name)
{
    return writeFile(folder.filePath(name), "This is no map.\n");
}

QString TestTerminalBadInput::truncated(const QString &name)
{
    QFile file(write(cells(), name));
    return file.resize(file.size() - 50) ? file.fileName() : QString();
}

QString TestTerminalBadInput::withoutTable(const QString &name)
{
    const QString path = write(cells(), name);
    return QFile::remove(QString(path).replace(QStringLiteral(".shp"), QStringLiteral(".dbf"))) ? path : QString();
}

QString TestTerminalBadInput::withTableOf(int rows, const QString &name)
{
    const QString path = withoutTable(name);
    LayerSketch fewer = cells();
    fewer.rows = fewer.rows.mid(0, rows);
    QString table = write(fewer, QStringLiteral("donor-") + name);
    table.replace(QStringLiteral(".shp"), QStringLiteral(".dbf"));
    return QFile::copy(table, QString(path).replace(QStringLiteral(".shp"), QStringLiteral(".dbf"))) ? path : QString();
}

QString TestTerminalBadInput::withFirstEasting(double value, const QString &name)
{
    const QString path = write(cells(), name);
    return setFirstEasting(path, value) ? path : QString();
}

void TestTerminalBadInput::initTestCase()
{
    QVERIFY(folder.isValid());
}

void TestTerminalBadInput::init()
{
    TestBase::init();
    host.reset(new TerminalHost);
    QCOMPARE(host->problem(), QString());
    QVERIFY(host->terminal().open({{TerminalHost::fixture("three-zones.geojson")}, {"SEED_K_HA"}}).first().isOk());
    before = host->terminal().mapColor(QPointF(0, 0));
    QVERIFY(before != FieldScene::groundColor());
}

void TestTerminalBadInput::cleanup()
{
    host.reset();
    TestBase::cleanup();
}

void TestTerminalBadInput::expectMapBefore()
{
    Terminal &terminal = host->terminal();
    terminal.window()->fieldView()->forgetColors();
    QCOMPARE(terminal.mapColor(QPointF(0, 0)), before);
    QCOMPARE(terminal.touch(QPointF(0, 0)), QStringLiteral("Rx Rate: 80.00"));
    QCOMPARE(terminal.columnsOf(QStringLiteral("rxMap.three-zones.geojson")).keys(), QList<int>{1});
}

void TestTerminalBadInput::whatIsRefusedLeavesTheMapBefore_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("columns");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *title, const QString &path, const char *reason, const QStringList &columns = {}) {
        QTest::newRow(title) << path << columns << QString::fromLatin1(reason);
    };
    LayerSketch empty = cells();
    empty.rows.clear();
    LayerSketch points = cells();
    points.kind = "POINT";
    points.rows = {{QStringLiteral("POINT (10 50)"), {1.0}}};
    LayerSketch names = cells();
    names.fields = {{"NAME", QStringLiteral("text")}};
    for (LayerRow &named : names.rows)
        named.values = {QStringLiteral("east")};
    LayerSketch twoPoints = cellsWith(QStringLiteral("POLYGON ((10 50, 10.001 50, 10 50))"));
    twoPoints.rows = twoPoints.rows.mid(0, 1);
    LayerSketch globe = cellsWith(squareText(-90.0, -80.0, 150.0));
    globe.rows = globe.rows.mid(0, 1); // Among other cells it would be closed as a stray one.

    row("truncated", truncated("truncated.shp"), "is cut short");
    row("fewer rows than shapes", withTableOf(2, "fewer.shp"), "2 rows for 4 shapes");
    row("no table", withoutTable("tableless.shp"), "no .dbf");
    row("text", writeText("text.shp"), "is no Shapefile");
    row("empty layer", write(empty, "empty.shp"), "holds no");
    row("points", write(points, "points.shp"), "points");
    row("no usable rate column", write(names, "names.shp"), "no column that looks like a rate");
    row("column that is not there", write(cells(), "cells.shp"), "\"NOPE\"", {"NOPE"});
    row("rings of two points only", write(twoPoints, "ring.shp"), "holds no polygon");
    row("half the globe", write(globe, "globe.shp"), "extends over");
    row("folder", folder.path(), "is a folder");
    row("missing", folder.filePath("missing.shp"), "there is no such file");
}

void TestTerminalBadInput::whatIsRefusedLeavesTheMapBefore()
{
    QFETCH(QString, path);
    QFETCH(QStringList, columns);
    QFETCH(QString, reason);
    QVERIFY(!path.isEmpty());
    const LoadReport report = host->terminal().open({{path}, columns}).first();
    QVERIFY(!report.isOk());
    QVERIFY2(report.error.startsWith(path + QStringLiteral(": ")), qPrintable(report.error));
    QVERIFY2(report.error.contains(reason), qPrintable(report.error));
    QVERIFY2(!report.error.contains(QLatin1Char('\n')), qPrintable(report.error));
    QCOMPARE(host->terminal().broker()->findGroup("rxMap.*", true, false).size(), 1);
    expectMapBefore();
}

void TestTerminalBadInput::whatIsCountedLeavesTheMapBefore_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("reason");
    QTest::newRow("not a number") << withFirstEasting(std::numeric_limits<double>::quiet_NaN(), "nan.shp")
                                  << "1 record with a coordinate that is not finite was skipped";
    QTest::newRow("infinite") << withFirstEasting(std::numeric_limits<double>::infinity(), "infinite.shp")
                              << "1 record with a coordinate that is not finite was skipped";
    QTest::newRow("ring of two points") << write(cellsWith(QStringLiteral("POLYGON ((10 50, 10.001 50, 10 50))")),
                                                 "tworing.shp")
                                        << "1 ring that encloses nothing";
}

void TestTerminalBadInput::whatIsCountedLeavesTheMapBefore()
{
    QFETCH(QString, path);
    QFETCH(QString, reason);
    QVERIFY(!path.isEmpty());
    // It feeds only the second product.
    const LoadReport report = host->terminal().open({{path}, {QString(), "RATE"}}).first();
    QVERIFY2(report.isOk(), qPrintable(report.error));
    QCOMPARE(report.outers, 3);
    QVERIFY2(report.warnings.filter(path).filter(reason).size() == 1, qPrintable(report.warnings.join('\n')));
    QCOMPARE(host->terminal().broker()->findGroup("rxMap.*", true, false).size(), 2);
    expectMapBefore();
}

RXMAP_TEST(TestTerminalBadInput, Widgets)
#include "tst_terminal_badinput.moc"
