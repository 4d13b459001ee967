// Task data that cannot be used: each gets one line, with file and place.

#include "files.h"
#include "readertest.h"
#include "taskdatasketch.h"

namespace {

using Sketch = TaskDataSketch;

constexpr int weight = 6;

QByteArray square()
{
    return Sketch::polygon({{11.0, 48.0, 0.01}});
}

QByteArray zone(int code = 1)
{
    return Sketch::zone(code, square() + Sketch::value(weight, 9));
}

QByteArray withGrid(const QByteArray &grid)
{
    return Sketch::task("TSK1", grid + Sketch::zone(7, Sketch::value(weight, 0)));
}

/// Three cells in a row.
QByteArray threeCells(int type = 2)
{
    return withGrid(Sketch::grid(3, 1, type, "J=\"7\""));
}

const QMap<QByteArray, QByteArray> threeValues{{"GRD00001.BIN", Sketch::steps({1, 2, 3})}};

} // namespace

class TaskDataReaderRefusalsTest : public ReaderTest {
    Q_OBJECT

private Q_SLOTS:
    void refusesWhatItCannotRead_data();
    void refusesWhatItCannotRead();
    void refusesCutOffXml();
    void refusesAnArchiveThatUnpacksWithoutEnd();
    void doesNotReadOutOfAnArchive();
    void refusesADamagedArchive();
    void readsTenThousandZones();
    void refusesTooManyColumns();
    void refusesMoreRatesThanMemoryIsToHold();
    void refusesTooManyReferences();
    void namesTheTasksAndColumnsThatAreThere();
    void endsWhenItIsCancelled();
};

void TaskDataReaderRefusalsTest::refusesWhatItCannotRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QMap<QByteArray, QByteArray>>("files");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char *name, const QByteArray &content, const char *reason,
                        const QMap<QByteArray, QByteArray> &files = {}) {
        QTest::newRow(name) << content << files << QString::fromLatin1(reason);
    };
    row("no task", "<PFD A=\"PFD1\"/>\n", "TASKDATA.XML holds no task");
    row("no prescription", Sketch::task("TSK1", Sketch::zone(1, Sketch::value(weight, 1))),
        "task TSK1 holds no prescription: it has neither zones with polygons nor a grid");
    row("no values", Sketch::task("TSK1", Sketch::zone(1, square())),
        "task TSK1 holds no prescription: its zones have no values");
    row("no grid file", threeCells(), "TASKDATA.XML, line 4: there is no file GRD00001.BIN beside it");
    row("grid file elsewhere", threeCells().replace("GRD00001", "../a/GRD00001"),
        "TASKDATA.XML, line 4: there is no file ../a/GRD00001.BIN beside it", threeValues);
    row("grid file too short", threeCells(), "GRD00001.BIN is too short for 1 x 3 cells: 8 of 12 bytes",
        {{"GRD00001.BIN", Sketch::steps({1, 2})}});
    row("grid file empty", threeCells(), "GRD00001.BIN is too short for 1 x 3 cells: 0 of 12 bytes",
        {{"GRD00001.BIN", ""}});
    row("grid file too long", threeCells(), "GRD00001.BIN is too long for 1 x 3 cells: 16 of 12 bytes",
        {{"GRD00001.BIN", Sketch::steps({1, 2, 3, 4})}});
    row("absurd size", withGrid(Sketch::grid(2000000000, 2000000000, 2, "J=\"7\"")),
        "TASKDATA.XML, line 4: the grid of 2000000000 x 2000000000 cells is too large", threeValues);
    row("beyond the pole", withGrid(Sketch::grid(3, 50000, 1)),
        "TASKDATA.XML, line 4: the grid does not end on the earth", threeValues);
    row("around the earth", withGrid(Sketch::grid(400000, 1, 1)),
        "TASKDATA.XML, line 4: the grid does not end on the earth", threeValues);
    row("no columns", withGrid(Sketch::grid(0, 3, 2, "J=\"7\"")),
        "TASKDATA.XML, line 4: E=\"0\" of GRD is no whole number from 1 to 2147483647", threeValues);
    row("another type", threeCells(3), "TASKDATA.XML, line 4: I=\"3\" of GRD is no whole number from 1 to 2",
        threeValues);
    row("cells without size", threeCells().replace("1.0E-3", "0"),
        "TASKDATA.XML, line 4: the grid's cells have no size", threeValues);
    row("no zone for the values", withGrid(Sketch::grid(3, 1, 2)),
        "TASKDATA.XML, line 4: the grid names no treatment zone (J)", threeValues);
    row("another zone for the values", threeCells().replace("J=\"7\"", "J=\"8\""),
        "TASKDATA.XML, line 4: there is no treatment zone 8", threeValues);
    row("a code without a zone", withGrid(Sketch::grid(3, 2, 1)),
        "GRD00001.BIN: there is no treatment zone 9, which row 2, column 1 names", {{"GRD00001.BIN", "\7\7\7\x9\7\7"}});
    row("no number", threeCells().replace("48", "nan"), "TASKDATA.XML, line 4: A=\"nan\" of GRD is no number",
        threeValues);
    row("a latitude beyond the pole", Sketch::task("TSK1", zone().replace("48.010000000", "91")),
        "TASKDATA.XML, line 7: C=\"91\" of PNT is out of range");
    row("no longitude", Sketch::task("TSK1", zone().replace(" D=\"11.01", " X=\"11.01")),
        "TASKDATA.XML, line 6: D=\"\" of PNT is no number");
    row("a rate in words", Sketch::task("TSK1", zone().replace("B=\"9\"", "B=\"lots\"")),
        "TASKDATA.XML, line 11: B=\"lots\" of PDV is no whole number from -2147483648 to 2147483647");
    row("a rate like a place in a text", Sketch::task("TSK1", zone().replace("B=\"9\"", "B=\"%4\"")),
        "TASKDATA.XML, line 11: B=\"%4\" of PDV is no whole number from -2147483648 to 2147483647");
    row("no process data variable", Sketch::task("TSK1", zone().replace("A=\"0006\"", "A=\"rate\"")),
        "TASKDATA.XML, line 11: A=\"rate\" of PDV is no hexadecimal number");
    row("no code", Sketch::task("TSK1", zone().replace("<TZN A=\"1\"", "<TZN")),
        "TASKDATA.XML, line 4: the treatment zone has no code");
    row("no such reference", "<XFR A=\"TSK00001\"/>", "TASKDATA.XML, line 3: there is no file TSK00001.XML beside it");
    row("a reference to itself", "<XFR A=\"TASKDATA\"/>",
        "TASKDATA.XML, line 3: the reference to TASKDATA.XML goes round in a circle");
    row("a circle of references", "<XFR A=\"TSK00001\"/>",
        "tsk00001.xml, line 1: the reference to TASKDATA.XML goes round in a circle",
        {{"tsk00001.xml", "<XFC><XFR A=\"TASKDATA\"/></XFC>"}});
    row("file names like places in a text", "<XFR A=\"TSK%2\"/>",
        "TSK%2.XML, line 1: the reference to TASKDATA.XML goes round in a circle",
        {{"TSK%2.XML", "<XFC><XFR A=\"TASKDATA\"/></XFC>"}});
    row("a grid file's name like a place in a text", withGrid(Sketch::grid(3, 2, 1)).replace("GRD00001", "GRD%2A"),
        "GRD%2A.BIN: there is no treatment zone 9, which row 2, column 1 names", {{"GRD%2A.BIN", "\7\7\7\x9\7\7"}});
    row("another format behind a reference", "<XFR A=\"TSK00001\"/>", "TSK00001.XML: holds no task data but <html>",
        {{"TSK00001.XML", "<html/>"}});
    row("entities within entities", "&lol;", "TASKDATA.XML, line 3: Entity 'lol' not declared.");
}

void TaskDataReaderRefusalsTest::refusesWhatItCannotRead()
{
    QFETCH(QByteArray, content);
    using Files = QMap<QByteArray, QByteArray>;
    QFETCH(Files, files);
    QVERIFY((Sketch{content, 4, files}.write(folder->path())));
    QVERIFY(!read(folder->path()));
    QTEST(error, "reason");
}

void TaskDataReaderRefusalsTest::refusesCutOffXml()
{
    const QByteArray whole = Sketch{Sketch::task("TSK1", zone())}.xml();
    for (int size = 0; size < whole.size() - 1; size += 7) {
        writeFile(path("TASKDATA.XML"), whole.left(size));
        map = RawPrescription();
        QVERIFY2(!read(folder->path()), qPrintable(QString::number(size)));
        QVERIFY2(error.startsWith("TASKDATA.XML, line ") && !error.contains('\n'), qPrintable(error));
    }
}

void TaskDataReaderRefusalsTest::refusesAnArchiveThatUnpacksWithoutEnd()
{
    QVERIFY((Sketch{QByteArray(101 << 20, ' ')}.writeArchive(path("a.zip"))));
    QVERIFY(QFileInfo(path("a.zip")).size() < 1 << 20);
    QVERIFY(!read(path("a.zip")));
    QCOMPARE(error, QStringLiteral("TASKDATA.XML has more than 104857600 bytes"));
    QVERIFY((Sketch{threeCells(), 4, {{"GRD00001.BIN", QByteArray(10 << 20, ' ')}}}.writeArchive(path("a.zip"))));
    QVERIFY(!read(path("a.zip")));
    QCOMPARE(error, QStringLiteral("GRD00001.BIN is too long for 1 x 3 cells: 10485760 of 12 bytes"));
}

void TaskDataReaderRefusalsTest::doesNotReadOutOfAnArchive()
{
    QVERIFY((Sketch{threeCells(), 4, {{"../GRD00001.BIN", threeValues.first()}}}.writeArchive(path("a.zip"))));
    QVERIFY(Sketch({{}, 4, threeValues}).write(folder->path()));
    QVERIFY(!read(path("a.zip")));
    QCOMPARE(error, QStringLiteral("the path of its entry \"../GRD00001.BIN\" leaves the archive"));
}

void TaskDataReaderRefusalsTest::refusesADamagedArchive()
{
    QVERIFY((Sketch{threeCells(), 4, threeValues}.writeArchive(path("a.zip"))));
    QFile file(path("a.zip"));
    QVERIFY(file.open(QIODevice::ReadWrite));
    // Inside the grid's file, which was packed first: just before the header of the next file.
    QVERIFY(file.seek(file.readAll().indexOf("PK\x03\x04", 4) - 8) && file.write("????") == 4);
    file.close();
    QVERIFY(!read(path("a.zip")));
    QCOMPARE(error, QStringLiteral("\"GRD00001.BIN\" in it is damaged"));
}

void TaskDataReaderRefusalsTest::readsTenThousandZones()
{
    QByteArray zones;
    for (int i = 0; i < 10000; ++i)
        zones += Sketch::zone(
            i, Sketch::polygon({{11.0 + 1e-4 * (i % 100), 48.0 + 1e-4 * (i / 100), 1e-4}}) + Sketch::value(weight, i));
    QVERIFY(Sketch{Sketch::task("TSK1", zones)}.write(folder->path()));
    QVERIFY2(read(folder->path()), qPrintable(error));
    QCOMPARE(map.records, 10000);
    QCOMPARE(map.columns[0].values[9999], 9999.0);
}

void TaskDataReaderRefusalsTest::refusesTooManyColumns()
{
    QByteArray values;
    for (int i = 0; i < 1001; ++i)
        values += Sketch::value(weight, 1, "C=\"PDT" + QByteArray::number(i) + "\"");
    QVERIFY(Sketch{Sketch::task("TSK1", Sketch::zone(1, square() + values))}.write(folder->path()));
    QVERIFY(!read(folder->path()));
    QCOMPARE(error, QStringLiteral("task TSK1 has more than 1000 process data variables"));
}

void TaskDataReaderRefusalsTest::refusesMoreRatesThanMemoryIsToHold()
{
    const auto valuesOf = [](int count) {
        QByteArray values;
        for (int i = 0; i < count; ++i)
            values += Sketch::value(weight, 1, "C=\"PDT" + QByteArray::number(i) + "\"");
        return values;
    };
    // A million cells may have twenty columns; for more, the file with them is not even looked for.
    const QByteArray grid = Sketch::grid(1000, 1000, 2, "J=\"7\"");
    QVERIFY(Sketch{Sketch::task("TSK1", grid + Sketch::zone(7, valuesOf(21)))}.write(folder->path()));
    QVERIFY(!read(folder->path()));
    QCOMPARE(error, QStringLiteral("TASKDATA.XML, line 4: the grid of 1000 x 1000 cells is too large"));
    QVERIFY(Sketch{Sketch::task("TSK1", grid + Sketch::zone(7, valuesOf(20)))}.write(folder->path()));
    QVERIFY(!read(folder->path()));
    QCOMPARE(error, QStringLiteral("TASKDATA.XML, line 4: there is no file GRD00001.BIN beside it"));
    // Zones are counted as they are read.
    QByteArray zones = Sketch::zone(0, square() + valuesOf(1000));
    for (int i = 1; i <= 20000; ++i)
        zones += Sketch::zone(i % 250, square());
    QVERIFY(Sketch{Sketch::task("TSK1", zones)}.write(folder->path()));
    QVERIFY(!read(folder->path()));
    QCOMPARE(error, QStringLiteral("task TSK1 has too many zones with too many values"));
}

void TaskDataReaderRefusalsTest::refusesTooManyReferences()
{
    QByteArray references;
    QMap<QByteArray, QByteArray> files;
    for (int i = 1; i <= 1000; ++i) {
        const QByteArray name = "TSK" + QByteArray::number(i).rightJustified(5, '0');
        references += "<XFR A=\"" + name + "\"/>\n";
        files.insert(name + ".XML", "<XFC/>");
    }
    QVERIFY((Sketch{references, 4, files}.write(folder->path())));
    QVERIFY(!read(folder->path()));
    QCOMPARE(error, QStringLiteral("TASKDATA.XML, line 1002: refers to more than 1000 files"));
}

void TaskDataReaderRefusalsTest::namesTheTasksAndColumnsThatAreThere()
{
    QVERIFY(Sketch{Sketch::task("TSK1", zone(), "B=\"North\"") + Sketch::task("TSK2", zone())}.write(folder->path()));
    QVERIFY(!read(folder->path(), {"Dose"}));
    QCOMPARE(error, QStringLiteral("has no column \"Dose\"; it has Setpoint Mass Per Area Application Rate"));
    QVERIFY(!read(ReadRequest{folder->path(), {}, {}, "West"}));
    QCOMPARE(error, QStringLiteral("has no task \"West\"; it has North, TSK2"));
}

void TaskDataReaderRefusalsTest::endsWhenItIsCancelled()
{
    QVERIFY((Sketch{threeCells(), 4, threeValues}.write(folder->path())));
    const std::atomic<bool> cancelled{true};
    LoadControl control;
    control.cancelled = &cancelled;
    PrescriptionReader reader(
        {folder->path()}, [](const SourceColumn &) { return RateChance::Possible; }, control);
    QVERIFY(!reader.read(map));
    QCOMPARE(reader.error(), QStringLiteral("loading was cancelled"));
}

RXMAP_TEST(TaskDataReaderRefusalsTest, Core)
#include "tst_taskdatareader_refusals.moc"
