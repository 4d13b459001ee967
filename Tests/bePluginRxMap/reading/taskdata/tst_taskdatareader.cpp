#include "readertest.h"
#include "taskdatasketch.h"

#include <cmath>

namespace {

using Sketch = TaskDataSketch;

constexpr int litres = 1; // Setpoint volume per area, 0.01 mm³/m².
constexpr int weight = 6; // Setpoint mass per area, mg/m².
constexpr int actual = 2; // Actual volume per area.
constexpr int unknown = 0xE000;

const QByteArray template7 = Sketch::zone(7, Sketch::value(litres, 0) + Sketch::value(weight, 0));

} // namespace

/// Task data written by the tests, read as a table with polygons.
class TaskDataReaderTest : public ReaderTest {
    Q_OBJECT

private Q_SLOTS:
    void readsGridsOfValues_data();
    void readsGridsOfValues();
    void readsGridsOfCodes();
    void readsZonesWithHoles();
    void readsSeveralGridsAndZonesOfOneTask();
    void namesAndScalesColumns_data();
    void namesAndScalesColumns();
    void takesTheTaskThatIsNamed_data();
    void takesTheTaskThatIsNamed();
    void followsReferencesToOtherFiles();
    void readsTheBoundary();
    void leavesOutABoundaryThatCannotBeRead();
    void tellsOfZonesThatAreNotThere();

private:
    QString root() const { return folder->filePath(QStringLiteral("fields")); }
};

void TaskDataReaderTest::readsGridsOfValues_data()
{
    QTest::addColumn<QByteArray>("mainFile");
    QTest::addColumn<QByteArray>("gridFile");
    QTest::addColumn<int>("version");
    QTest::addColumn<QByteArray>("opened");
    QTest::newRow("version 2") << QByteArray("TASKDATA.XML") << QByteArray("GRD00001.BIN") << 2 << QByteArray("fields");
    QTest::newRow("version 3") << QByteArray("taskdata.xml") << QByteArray("grd00001.bin") << 3 << QByteArray("fields");
    QTest::newRow("version 4") << QByteArray("TaskData.xml") << QByteArray("GRD00001.bin") << 4
                               << QByteArray("fields/");
    QTest::newRow("the file") << QByteArray("taskdata.xml") << QByteArray("Grd00001.BIN") << 4
                              << QByteArray("fields/taskdata.xml");
    QTest::newRow("another name") << QByteArray("spring.xml") << QByteArray("GRD00001.BIN") << 4
                                  << QByteArray("fields/spring.xml");
    QTest::newRow("archive") << QByteArray("TASKDATA.XML") << QByteArray("GRD00001.BIN") << 4 << QByteArray("a.zip");
    QTest::newRow("archive in capitals, with folders")
        << QByteArray("taskdata.xml") << QByteArray("grd00001.bin") << 3 << QByteArray("B.ZIP");
    QTest::newRow("folder of an archive")
        << QByteArray("taskdata.xml") << QByteArray("grd00001.bin") << 3 << QByteArray("B.ZIP/USB");
    QTest::newRow("file of an archive") << QByteArray("spring.xml") << QByteArray("GRD00001.BIN") << 4
                                        << QByteArray("a.zip/spring.xml");
}

void TaskDataReaderTest::readsGridsOfValues()
{
    QFETCH(QByteArray, mainFile);
    QFETCH(QByteArray, gridFile);
    QFETCH(int, version);
    QFETCH(QByteArray, opened);
    const Sketch sketch{Sketch::task("TSK1", Sketch::grid(2, 3, 2, "J=\"7\"") + template7),
                        version,
                        {{gridFile, Sketch::steps({1, 10, 2, 20, 3, 30, 4, 40, 5, 50, 6, -60})}},
                        mainFile};
    QVERIFY(sketch.write(root()));
    QVERIFY(sketch.writeArchive(path("a.zip")));
    QVERIFY(sketch.writeArchive(path("B.ZIP"), "usb/stick/"));
    QVERIFY2(read(path(opened.constData())), qPrintable(error));
    QCOMPARE(map.warnings, QStringList());
    QCOMPARE(map.records, 6);
    QCOMPARE(map.columns.size(), size_t(2));
    QVERIFY(!map.reference && map.lackOfReference.isEmpty());
    // Row by row from the south-west: the third cell is the first one of the second row.
    QCOMPARE(map.ys[map.rings[0].first], 48.0);
    QCOMPARE(map.ys[map.rings[5].first], 48.002);
    const SourceRing &third = map.rings[2];
    QCOMPARE(third.record, 2);
    QCOMPARE(third.count, size_t(4));
    QCOMPARE(map.xs[third.first], 11.0);
    QCOMPARE(map.ys[third.first], 48.001);
    QCOMPARE(map.ys[third.first + 2], 48.002);
    QCOMPARE(map.columns[0].values[2], 0.03);
    QCOMPARE(map.columns[1].values[2], 30.0);
    // Neighbours share corners to the last bit.
    QCOMPARE(map.xs[map.rings[0].first + 1], map.xs[map.rings[1].first]);
    QVERIFY(std::isnan(map.columns[1].values[5]));
    QCOMPARE(map.columns[1].unreadable, std::vector<int>{5});
}

void TaskDataReaderTest::readsGridsOfCodes()
{
    const QByteArray zones = Sketch::zone(0, Sketch::value(litres, 100)) + Sketch::zone(200, Sketch::value(weight, 7))
        + Sketch::zone(3, Sketch::value(weight, 0) + Sketch::value(litres, 300))
        + Sketch::zone(3, Sketch::value(litres, 999)); // Of equal codes, the first one counts.
    const Sketch sketch{
        Sketch::task("TSK1", zones + Sketch::grid(2, 2, 1)), 4, {{"GRD00001.BIN", QByteArray("\0\3\xc8\3", 4)}}};
    QVERIFY(sketch.write(root()));
    QVERIFY2(read(root()), qPrintable(error));
    QCOMPARE(map.columns[0].values[0], 1.0);
    QCOMPARE(map.columns[0].values[1], 3.0);
    QVERIFY(std::isnan(map.columns[0].values[2]));
    QVERIFY(std::isnan(map.columns[1].values[0]));
    QCOMPARE(map.columns[1].values[1], 0.0);
    QCOMPARE(map.columns[1].values[2], 7.0);
}

void TaskDataReaderTest::readsZonesWithHoles()
{
    // One element holds two outer rings, as version 2 allows; the hole follows the second one.
    const QByteArray two = Sketch::polygon({{11.0, 48.0, 0.01}}).replace("</PLN>\n", {})
        + Sketch::polygon({{11.02, 48.0, 0.01}, {11.002, 48.002, 0.002}}).replace("<PLN A=\"2\">", {});
    const QByteArray zones = Sketch::zone(1, two + Sketch::value(weight, 10))
        + Sketch::zone(2, Sketch::polygon({{11.002, 48.002, 0.002}}) + Sketch::value(weight, 20));
    QVERIFY(Sketch{Sketch::task("TSK1", zones)}.write(root()));
    QVERIFY2(read(root()), qPrintable(error));
    QCOMPARE(map.records, 2);
    QCOMPARE(map.rings.size(), size_t(4));
    QVERIFY(!map.rings[0].isHole && map.rings[1].isHole && !map.rings[2].isHole);
    QCOMPARE(map.xs[map.rings[0].first], 11.0);
    QCOMPARE(map.rings[3].record, 1);
    QCOMPARE(map.columns[0].values, std::vector<double>({10.0, 20.0}));
}

void TaskDataReaderTest::readsSeveralGridsAndZonesOfOneTask()
{
    const QByteArray second = Sketch::grid(1, 1, 1).replace("GRD00001", "GRD00002");
    const QByteArray zones = Sketch::zone(1, Sketch::value(weight, 10))
        + Sketch::zone(2, Sketch::polygon({{12.0, 48.0, 0.01}}) + Sketch::value(weight, 20));
    const Sketch sketch{Sketch::task("TSK1", Sketch::grid(2, 1, 1) + second + zones),
                        4,
                        {{"GRD00001.BIN", "\1\2"}, {"GRD00002.BIN", "\2"}}};
    QVERIFY(sketch.write(root()));
    QVERIFY2(read(root()), qPrintable(error));
    QCOMPARE(map.columns[0].values, std::vector<double>({10.0, 20.0, 20.0, 20.0}));
    QCOMPARE(map.rings.back().record, 3);
}

void TaskDataReaderTest::namesAndScalesColumns_data()
{
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("measured");
    QTest::addColumn<QStringList>("units");
    QTest::addColumn<QString>("meanings"); // r: rates, n: none, ?: not said.
    QTest::addColumn<double>("first");
    const auto row = [](const char *name, const QByteArray &values, const QStringList &names,
                        const QStringList &measured, const QStringList &units, const char *meanings, double first) {
        QTest::newRow(name) << values << names << measured << units << QString::fromLatin1(meanings) << first;
    };
    row("products", Sketch::value(litres, 500, "C=\"PDT2\"") + Sketch::value(weight, 5, "C=\"PDT1\""),
        {"Slurry", "Urea"}, {"", ""}, {"mm³/m²", "mg/m²"}, "rr", 5.0);
    row("no product", Sketch::value(11, 4000), {"Setpoint Count Per Area Application Rate"}, {"Seeds"}, {"seeds/m²"},
        "r", 4.0);
    row("one product twice", Sketch::value(litres, 1, "C=\"PDT1\"") + Sketch::value(weight, 1, "C=\"PDT1\""),
        {"Urea", "Urea (2)"}, {"", ""}, {"mm³/m²", "mg/m²"}, "rr", 0.01);
    row("two bins", Sketch::value(weight, 3, "D=\"DET1\"") + Sketch::value(weight, 4, "D=\"DET2\""),
        {"Setpoint Mass Per Area Application Rate", "Setpoint Mass Per Area Application Rate (2)"}, {"Mass", "Mass 2"},
        {"mg/m²", "mg/m²"}, "rr", 3.0);
    row("a target and what was put out",
        Sketch::value(actual, 7, "C=\"PDT1\"") + Sketch::value(litres, 8, "C=\"PDT1\""), {"Urea", "Urea (2)"}, {"", ""},
        {"mm³/m²", "mm³/m²"}, "nr", 0.07);
    row("what was put out alone", Sketch::value(actual, 7), {"Actual Volume Per Area Application Rate"}, {"Volume"},
        {"mm³/m²"}, "?", 0.07);
    row("per time", Sketch::value(36, 7), {"Setpoint Volume Per Time Application Rate"}, {"Volume"}, {"mm³/s"}, "n",
        7.0);
    row("an unknown number", Sketch::value(unknown, 7), {"DDI 57344"}, {""}, {""}, "?", 7.0);
    row("an unknown number with a presentation", Sketch::value(unknown, 750, "E=\"VPN1\""), {"DDI 57344"}, {""},
        {"kg/ha"}, "?", 7.6);
}

void TaskDataReaderTest::namesAndScalesColumns()
{
    QFETCH(QByteArray, values);
    QFETCH(QStringList, units);
    QFETCH(double, first);
    const QByteArray content = "<PDT A=\"PDT1\" B=\"Urea\"/>\n"
        + Sketch::task("TSK1", Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + values))
        + "<PDT A=\"PDT2\" B=\"Slurry\"/><VPN A=\"VPN1\" B=\"10\" C=\"0.01\" D=\"1\" E=\"kg/ha\"/>\n";
    QVERIFY(Sketch{content}.write(root()));
    QVERIFY2(read(root()), qPrintable(error));
    QTEST(map.columnNames, "names");
    QStringList found;
    QStringList measured;
    QString meanings;
    for (const SourceColumn &column : map.columns) {
        found.append(column.formatUnit);
        measured.append(column.measured);
        meanings += column.meaning == SourceColumn::Meaning::Rates ? 'r'
            : column.meaning == SourceColumn::Meaning::NoRates     ? 'n'
                                                                   : '?';
    }
    QCOMPARE(found, units);
    QTEST(measured, "measured");
    QTEST(meanings, "meanings");
    QCOMPARE(map.columns[0].values[0], first);
}

void TaskDataReaderTest::takesTheTaskThatIsNamed_data()
{
    QTest::addColumn<QString>("wanted");
    QTest::addColumn<QString>("taken");
    QTest::addColumn<int>("warnings");
    QTest::newRow("the first with a prescription") << ""
                                                   << "North" << 1;
    QTest::newRow("designator") << "South"
                                << "South" << 0;
    QTest::newRow("identifier") << "TSK2"
                                << "North" << 0;
}

void TaskDataReaderTest::takesTheTaskThatIsNamed()
{
    QFETCH(QString, wanted);
    const auto task = [](const QByteArray &name, const QByteArray &designator, int steps) {
        return Sketch::task(name, Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(weight, steps)),
                            "B=\"" + designator + "\"");
    };
    QVERIFY(Sketch{Sketch::task("TSK1", "", "B=\"Empty\"") + task("TSK2", "North", 1) + task("TSK3", "South", 2)}.write(
        root()));
    QVERIFY2(read(ReadRequest{root(), {}, {}, wanted}), qPrintable(error));
    QTEST(map.task, "taken");
    QCOMPARE(map.tasks, QStringList({"North", "South"}));
    QTEST(map.warnings.size(), "warnings");
    QCOMPARE(map.columns[0].values[0], map.task == "North" ? 1.0 : 2.0);
}

void TaskDataReaderTest::followsReferencesToOtherFiles()
{
    const QByteArray task = Sketch::task(
        "TSK1", Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(weight, 9, "C=\"PDT1\"")));
    const Sketch sketch{
        "<XFR A=\"TSK00001\" B=\"1\"/><XFR A=\"PDT00001\" B=\"1\"/>",
        3,
        {{"TSK00001.XML", "<XFC>" + task + "</XFC>"}, {"pdt00001.xml", "<XFC><PDT A=\"PDT1\" B=\"Urea\"/></XFC>"}}};
    QVERIFY(sketch.write(root()));
    QVERIFY2(read(root()), qPrintable(error));
    QCOMPARE(map.columnNames, QStringList("Urea"));
}

void TaskDataReaderTest::readsTheBoundary()
{
    const QByteArray field = "<PFD A=\"PFD9\">" + Sketch::polygon({{11.0, 48.0, 0.01}, {11.002, 48.0, 0.001}}, 1)
        + Sketch::polygon({{11.0, 48.0, 0.02}}, 6) + "</PFD>";
    QVERIFY(
        Sketch{Sketch::task("TSK1", Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(weight, 1)),
                            "E=\"PFD9\"")
               + field}
            .write(root()));
    QVERIFY2(read(root()), qPrintable(error));
    QCOMPARE(map.boundary.ends, std::vector<size_t>({5, 10}));
    QCOMPARE(map.boundary.xs[1], 11.01);
    QCOMPARE(map.boundary.ys[2], 48.01);
}

void TaskDataReaderTest::leavesOutABoundaryThatCannotBeRead()
{
    const QByteArray field =
        "<PFD A=\"PFD9\">" + Sketch::polygon({{11.0, 48.0, 0.01}}, 1).replace("48.01", "481") + "</PFD>";
    QVERIFY(
        Sketch{Sketch::task("TSK1", Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(weight, 1)),
                            "E=\"PFD9\"")
               + field}
            .write(root()));
    QVERIFY2(read(root()), qPrintable(error));
    QVERIFY(map.boundary.ends.empty());
    QCOMPARE(map.warnings.size(), 1);
    QVERIFY2(map.warnings.first().startsWith("the field's boundary is left out: TASKDATA.XML, line "),
             qPrintable(map.warnings.first()));
}

void TaskDataReaderTest::tellsOfZonesThatAreNotThere()
{
    const QByteArray zones = Sketch::zone(1, Sketch::polygon({{11.0, 48.0, 0.01}}) + Sketch::value(weight, 9))
        + Sketch::zone(2, Sketch::value(weight, 4)) + Sketch::zone(5, Sketch::value(weight, 5));
    QVERIFY(Sketch{Sketch::task("TSK1", zones, "H=\"2\" I=\"3\" J=\"5\"")}.write(root()));
    QVERIFY2(read(root()), qPrintable(error));
    QCOMPARE(map.warnings, QStringList("task TSK1 names treatment zone 3 for a lost position, which is not there"));
    QCOMPARE(map.columns[0].placeRates.outOfField, 5.0);
    QCOMPARE(map.columns[0].placeRates.elsewhere, 4.0);
    QVERIFY(std::isnan(map.columns[0].placeRates.positionLost));
    QCOMPARE(map.records, 1);
}

RXMAP_TEST(TaskDataReaderTest, Core)
#include "tst_taskdatareader.moc"
