#include "commandline.h"
#include "documentpage.h"
#include "findingkind.h"
#include "paths.h"
#include "productfile.h"
#include "ratecommand.h"
#include "scriptcontrol.h"
#include "scriptmachine.h"
#include "scriptterminal.h"
#include "testbase.h"

#include <QDir>
#include <QMetaMethod>
#include <QMetaProperty>
#include <QRegularExpression>

/// The reference names everything that the program has, and nothing else.
class DocumentedNamesTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void options();
    void optionsInPassing_data();
    void optionsInPassing();
    void calls();
    void callsInPassing_data();
    void callsInPassing();
    void partsOfControls();
    void partsOfTheMachine();
    void kindsOfFindings();
    void sourcesOfRates();
    void kindsOfProducts();
};

namespace {

using Names = QSet<QString>;

const QString reference = QStringLiteral("docs/simulator.md");

QString listed(const Names &names)
{
    QStringList list = names.values();
    list.sort();
    return list.join(QLatin1Char(' '));
}

Names matches(const QString &text, const char *pattern)
{
    Names found;
    auto match = QRegularExpression(QLatin1String(pattern), QRegularExpression::MultilineOption).globalMatch(text);
    while (match.hasNext())
        found.insert(match.next().captured(1));
    return found;
}

/// The names at the beginning of the code in a column of a section's tables.
Names tabled(const QString &page, const QString &section, const char *pattern = "^(\\w+)")
{
    Names names;
    for (const QString &cell : DocumentPage::cells(DocumentPage(page).section(section), 0)) {
        for (const QString &code : DocumentPage::code(cell))
            names.unite(matches(code, pattern));
    }
    return names;
}

/// What a script may use of an object: its properties, and the calls that are not signals.
Names usable(const QMetaObject &type)
{
    Names names;
    for (int i = QObject::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i)
        names.insert(QString::fromLatin1(type.property(i).name()));
    for (int i = QObject::staticMetaObject.methodCount(); i < type.methodCount(); ++i) {
        if (type.method(i).methodType() != QMetaMethod::Signal)
            names.insert(QString::fromLatin1(type.method(i).name()));
    }
    return names;
}

/// The table cell that describes a call of `terminal`.
QString explanation(const QString &call)
{
    const QString section = DocumentPage(reference).section(QStringLiteral("Scripts"));
    const int row = DocumentPage::cells(section, 0).indexOf(QStringLiteral("`%1`").arg(call));
    return row < 0 ? QString() : DocumentPage::cells(section, 1).at(row);
}

Names helpedOptions()
{
    return matches(CommandLine::helpText(), "^ +(?:-\\w, )?(--[a-z-]+)");
}

/// Rows for the pages, and for the example scripts.
void addTexts(const QStringList &pages)
{
    QTest::addColumn<QString>("text");
    for (const QString &page : pages)
        QTest::newRow(qPrintable(page)) << DocumentPage(page).text();
}

} // namespace

void DocumentedNamesTest::options()
{
    const Names documented = tabled(reference, QStringLiteral("Options"), "^(--[a-z-]+)");
    QCOMPARE(listed(documented), listed(helpedOptions()));
}

void DocumentedNamesTest::optionsInPassing_data()
{
    addTexts(DocumentPage::readersPages());
}

void DocumentedNamesTest::optionsInPassing()
{
    QFETCH(QString, text);
    QVERIFY(!text.isEmpty());
    QCOMPARE(listed(matches(text, "(?<![\\w-])(--[a-z][a-z-]*)").subtract(helpedOptions())), QString());
}

void DocumentedNamesTest::calls()
{
    QCOMPARE(listed(tabled(reference, QStringLiteral("Scripts"))), listed(usable(ScriptTerminal::staticMetaObject)));
}

void DocumentedNamesTest::callsInPassing_data()
{
    QStringList pages = DocumentPage::readersPages();
    pages.append(QStringLiteral("docs/plugin-author.md"));
    for (const QString &script : QDir(sourcePath("docs/examples")).entryList({QStringLiteral("*.js")}))
        pages.append(QStringLiteral("docs/examples/") + script);
    addTexts(pages);
}

void DocumentedNamesTest::callsInPassing()
{
    QFETCH(QString, text);
    QCOMPARE(listed(matches(text, "\\bterminal\\.(\\w+)").subtract(usable(ScriptTerminal::staticMetaObject))),
             QString());
    QCOMPARE(listed(matches(text, "\\bmachine\\.(\\w+)").subtract(usable(ScriptMachine::staticMetaObject))), QString());
    QCOMPARE(listed(matches(text, "\\bfind\\([^()]*\\)\\.(\\w+)").subtract(usable(ScriptControl::staticMetaObject))),
             QString());
}

void DocumentedNamesTest::partsOfControls()
{
    Names parts;
    for (const QString &code : DocumentPage::code(explanation(QStringLiteral("find(name)"))))
        parts.unite(matches(code, "^(\\w+)"));
    QCOMPARE(listed(parts), listed(usable(ScriptControl::staticMetaObject)));
}

void DocumentedNamesTest::partsOfTheMachine()
{
    const QString shape = DocumentPage::code(explanation(QStringLiteral("machine"))).value(0);
    QCOMPARE(listed(matches(shape, "(\\w+)")), listed(usable(ScriptMachine::staticMetaObject)));
}

void DocumentedNamesTest::kindsOfFindings()
{
    Names kinds;
    for (int i = 0; !FindingKind::name(MapFinding::Kind(i)).isEmpty(); ++i)
        kinds.insert(FindingKind::name(MapFinding::Kind(i)));
    QVERIFY(!kinds.isEmpty());
    QCOMPARE(listed(tabled(QStringLiteral("docs/prescriptions.md"), QStringLiteral("Map check"))), listed(kinds));
}

void DocumentedNamesTest::sourcesOfRates()
{
    Names sources;
    for (int i = 0; i <= int(CommandSource::NotControlled); ++i)
        sources.insert(QString::fromLatin1(sourceName(CommandSource(i))));
    QCOMPARE(listed(tabled(reference, QStringLiteral("Driving"))), listed(sources));
}

void DocumentedNamesTest::kindsOfProducts()
{
    const QString section = DocumentPage(reference).section(QStringLiteral("Products and machine"));
    const QStringList kinds = DocumentPage::cells(section, 0);
    QCOMPARE(kinds.size(), int(Product::Kind::Unknown) + 1);
    for (int row = 0; row < kinds.size(); ++row) {
        const QString kind = DocumentPage::code(kinds.at(row)).value(0);
        const auto machine =
            ProductFile::parse(QStringLiteral(R"([{"name": "A", "kind": "%1"}])").arg(kind).toUtf8(), kind);
        QVERIFY2(machine.error.isEmpty(), qPrintable(machine.error));
        const ActuatorSettings usual = machine.value.products.first().actuator;
        const auto figure = [&section, row](int column) {
            const QString cell = DocumentPage::cells(section, column).at(row);
            return cell == QLatin1String("any") ? std::numeric_limits<double>::max()
                                                : QString(cell).remove(QLatin1Char(',')).toDouble();
        };
        QCOMPARE(figure(1), usual.deadTime);
        QCOMPARE(figure(2), usual.timeConstant);
        QCOMPARE(figure(3), usual.minRate);
        QCOMPARE(figure(4), std::min(usual.maxRate, std::numeric_limits<double>::max()));
    }
}

RXMAP_TEST(DocumentedNamesTest, Core)
#include "tst_documentednames.moc"
