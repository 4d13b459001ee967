#include "documentpage.h"
#include "files.h"
#include "paths.h"
#include "simulatorrun.h"
#include "testbase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>

/// The results of calls and the contents of files have exactly the members that the reference gives.
class DocumentedShapesTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void whatCallsReturn_data();
    void whatCallsReturn();
    void whatOptionsCallsKnow_data();
    void whatOptionsCallsKnow();
    void reports_data();
    void reports();
    void records();

private:
    QTemporaryDir folder;
    /// The result of each call, or the reason with which it refused.
    QJsonObject returned;
};

namespace {

const QString reference = QStringLiteral("docs/simulator.md");

/// Paths of all members, such as "classes.rate"; of a list, the first entry is looked into.
QStringList members(const QJsonValue &value, const QString &prefix = QString())
{
    if (value.isArray())
        return members(value.toArray().first(), prefix);
    QStringList found;
    const QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        found.append(prefix + member.key());
        found += members(member.value(), prefix + member.key() + QLatin1Char('.'));
    }
    return found;
}

/// The members of a shape as the reference writes it: {group, sources: [{column, unit}], origin: {lon, lat}}.
QStringList membersTold(QString shape)
{
    static const QRegularExpression plainList(QStringLiteral("\\[[^{}\\[\\]]*\\]"));
    static const QRegularExpression lone(QStringLiteral("\"?(\\w+)\"?\\s*(?=[,}\\n])"));
    static const QRegularExpression named(QStringLiteral("\"?(\\w+)\"?\\s*:"));
    shape.replace(plainList, QStringLiteral("null"));
    shape.replace(QRegularExpression(QStringLiteral(": null")), QStringLiteral(""));
    shape.replace(lone, QStringLiteral("\"\\1\": 0"));
    shape.replace(named, QStringLiteral("\"\\1\":"));
    return members(QJsonDocument::fromJson(shape.toUtf8()).object());
}

QString sorted(QStringList names)
{
    names.sort();
    return names.join(QLatin1Char(' '));
}

/// The first shape that a section or a cell gives: from a brace to its closing brace.
QString shapeIn(const QString &text)
{
    const int begin = text.indexOf(QLatin1Char('{'));
    int depth = 0;
    for (int i = begin; i >= 0 && i < text.size(); ++i) {
        if (text.at(i) == QLatin1Char('{'))
            ++depth;
        else if (text.at(i) == QLatin1Char('}') && --depth == 0)
            return text.mid(begin, i + 1 - begin);
    }
    return {};
}

/// The row of the table of calls that begins with this text; `column` 0 is the call, 1 what it does.
QString callRow(const QString &call, int column)
{
    const QString section = DocumentPage(reference).section(QStringLiteral("Scripts"));
    const QStringList calls = DocumentPage::cells(section, 0);
    for (int row = 0; row < calls.size(); ++row) {
        if (calls.at(row).contains(QLatin1Char('`') + call))
            return DocumentPage::cells(section, column).at(row);
    }
    return {};
}

QJsonObject readJson(const QString &path)
{
    return QJsonDocument::fromJson(readFile(path)).object();
}

} // namespace

void DocumentedShapesTest::initTestCase()
{
    writeFile(folder.filePath(QStringLiteral("track.csv")), "time,x,y\n0,0,0\n1,3,0\nnothing\n2,6,0\n");
    const SimulatorRun run = runScript(QStringLiteral(R"js(
const folder = "%1";
const returned = {open: terminal.open("%2"), bounds: terminal.bounds(), toField: terminal.toField(-93.4, 42.1),
                  rates: terminal.rates(1)};
for (const call of ["open", "follow"]) {
    try { call === "open" ? terminal.open("%2", {strange: 1}) : terminal.follow({strange: 1}); }
    catch (error) { returned[call + "Options"] = String(error.message); }
}
terminal.record(folder + "/record.csv");
terminal.replay(folder + "/track.csv");
terminal.run(1);
terminal.record("");
returned.replay = terminal.replay(folder + "/track.csv");
print(JSON.stringify(returned));
)js")
                                           .arg(folder.path(), sampleField()));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    returned = QJsonDocument::fromJson(run.output.constLast().toUtf8()).object();
}

void DocumentedShapesTest::whatCallsReturn_data()
{
    QTest::addColumn<QString>("call");
    for (const char *call : {"open", "bounds", "toField", "rates", "replay"})
        QTest::newRow(call) << QString::fromLatin1(call);
}

void DocumentedShapesTest::whatCallsReturn()
{
    QFETCH(QString, call);
    const QStringList actual = members(returned.value(call));
    QVERIFY(!actual.isEmpty());
    QCOMPARE(sorted(membersTold(shapeIn(callRow(call + QLatin1Char('('), 1)))), sorted(actual));
}

void DocumentedShapesTest::whatOptionsCallsKnow_data()
{
    QTest::addColumn<QString>("call");
    for (const char *call : {"open", "follow"})
        QTest::newRow(call) << QString::fromLatin1(call);
}

void DocumentedShapesTest::whatOptionsCallsKnow()
{
    QFETCH(QString, call);
    QString shape = shapeIn(callRow(call + QLatin1Char('('), 0));
    shape.replace(QStringLiteral("\"swaths\""), QStringLiteral("[]"));
    const QString refusal = returned.value(call + QStringLiteral("Options")).toString();
    const QStringList known = refusal.section(QStringLiteral("it knows "), 1).split(QStringLiteral(", "));
    QCOMPARE(sorted(membersTold(shape)), sorted(known));
}

void DocumentedShapesTest::reports_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("section");
    QTest::addColumn<QStringList>("arguments");
    const QString file = sourcePath("docs/examples/to-check.geojson");
    const QString report = folder.filePath(QStringLiteral("report.json"));
    QTest::newRow("--drive") << reference << QStringLiteral("The report of `--drive`")
                             << QStringList{QStringLiteral("--drive"), report, sampleField()};
    QTest::newRow("--check") << QStringLiteral("docs/prescriptions.md") << QStringLiteral("Map check")
                             << QStringList{QStringLiteral("--check"), QStringLiteral("--json"), file};
}

void DocumentedShapesTest::reports()
{
    QFETCH(QString, page);
    QFETCH(QString, section);
    QFETCH(QStringList, arguments);
    const SimulatorRun run = runSimulator(arguments);
    const QJsonObject report = arguments.first() == QLatin1String("--drive")
        ? readJson(arguments.at(1))
        : QJsonDocument::fromJson(run.output.join(QLatin1Char('\n')).toUtf8()).object();
    QVERIFY2(!report.isEmpty(), qPrintable(run.errors));
    QCOMPARE(sorted(membersTold(shapeIn(DocumentPage(page).section(section)))), sorted(members(report)));
}

void DocumentedShapesTest::records()
{
    QFile record(folder.filePath(QStringLiteral("record.csv")));
    QVERIFY(record.open(QIODevice::ReadOnly));
    QString head = QString::fromUtf8(record.readLine()).trimmed();
    QStringList actual =
        head.replace(QRegularExpression(QStringLiteral("_\\d+")), QStringLiteral("_n")).split(QLatin1Char(','));
    actual.removeDuplicates();
    const QString text = DocumentPage(reference).section(QStringLiteral("Driving"));
    const int begin = text.indexOf(QStringLiteral("A record has a row for each step"));
    const QStringList told =
        DocumentPage::code(text.mid(begin, text.indexOf(QStringLiteral("GeoPackage"), begin) - begin));
    QCOMPARE(told, actual);
}

RXMAP_TEST(DocumentedShapesTest, Widgets)
#include "tst_documentedshapes.moc"
