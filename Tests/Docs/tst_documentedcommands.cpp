#include "documentpage.h"
#include "paths.h"
#include "shellsession.h"
#include "testbase.h"

#include <QDir>

/// The commands that the documentation has its readers type print what the documentation shows.
class DocumentedCommandsTest : public TestBase {
    Q_OBJECT

private Q_SLOTS:
    void everyCommandPrintsWhatStandsBelowIt_data();
    void everyCommandPrintsWhatStandsBelowIt();
    void everyExampleIsShown();
};

namespace {

/// A line "..." stands for any number of lines.
const QString anyLines = QStringLiteral("...");

bool isLike(const QStringList &actual, const QStringList &told)
{
    if (told.isEmpty())
        return actual.isEmpty();
    if (told.first() != anyLines)
        return !actual.isEmpty() && actual.first() == told.first() && isLike(actual.mid(1), told.mid(1));
    for (int skipped = 0; skipped <= actual.size(); ++skipped) {
        if (isLike(actual.mid(skipped), told.mid(1)))
            return true;
    }
    return false;
}

} // namespace

void DocumentedCommandsTest::everyCommandPrintsWhatStandsBelowIt_data()
{
    QTest::addColumn<QString>("page");
    QStringList pages = DocumentPage::readersPages();
    // It leads to the others.
    pages.removeOne(QStringLiteral("README.md"));
    for (const QString &page : pages)
        QTest::newRow(qPrintable(page)) << page;
}

void DocumentedCommandsTest::everyCommandPrintsWhatStandsBelowIt()
{
    QFETCH(QString, page);
    const ShellSession shell;
    const QList<DocumentPage::Command> commands = DocumentPage(page).commands();
    QVERIFY(!commands.isEmpty());
    for (const DocumentPage::Command &command : commands) {
        const QStringList actual = shell.run(command.text);
        QVERIFY2(isLike(actual, command.output), qPrintable(command.text + QLatin1Char('\n') + actual.join('\n')));
    }
}

void DocumentedCommandsTest::everyExampleIsShown()
{
    QString commands;
    for (const DocumentPage::Command &command : DocumentPage(QStringLiteral("docs/tester.md")).commands())
        commands += command.text + QLatin1Char('\n');
    const QStringList scripts = QDir(sourcePath("docs/examples")).entryList({QStringLiteral("*.js")});
    QVERIFY(scripts.size() >= 5);
    for (const QString &script : scripts)
        QVERIFY2(commands.contains(QStringLiteral("--script ") + script), qPrintable(script));
}

RXMAP_TEST(DocumentedCommandsTest, Core)
#include "tst_documentedcommands.moc"
