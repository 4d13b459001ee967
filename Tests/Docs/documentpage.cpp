#include "documentpage.h"

#include "files.h"
#include "paths.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

namespace {

const QString codeIndent(4, QLatin1Char(' '));
const QString prompt = QStringLiteral("$ ");

/// 1 for a title, 2 for a section, ...; 0 for any other line.
int headingLevel(const QString &line)
{
    static const QRegularExpression heading(QStringLiteral("^(#+) "));
    return heading.match(line).capturedLength(1);
}

QStringList captures(const QString &text, const QString &pattern)
{
    QStringList found;
    auto matches = QRegularExpression(pattern, QRegularExpression::MultilineOption).globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured(1));
    return found;
}

QStringList cellsOf(const QString &row)
{
    static const QRegularExpression bar(QStringLiteral("(?<!\\\\)\\|"));
    QStringList cells = row.split(bar);
    cells.removeFirst();
    if (!cells.isEmpty())
        cells.removeLast();
    return cells;
}

} // namespace

DocumentPage::DocumentPage(const QString &path)
    : name(path)
{
    content = QString::fromUtf8(readFile(sourcePath("") + path));
}

QStringList DocumentPage::readersPages()
{
    return {QStringLiteral("README.md"), QStringLiteral("docs/agronomist.md"), QStringLiteral("docs/tester.md"),
            QStringLiteral("docs/simulator.md"), QStringLiteral("docs/prescriptions.md")};
}

QString DocumentPage::section(const QString &heading) const
{
    QStringList lines;
    int level = 0;
    for (const QString &line : content.split(QLatin1Char('\n'))) {
        const int here = headingLevel(line);
        if (here > 0 && here <= level)
            break;
        if (level > 0)
            lines.append(line);
        else if (here > 0 && line.mid(here + 1) == heading)
            level = here;
    }
    return lines.join(QLatin1Char('\n'));
}

QList<DocumentPage::Command> DocumentPage::commands() const
{
    QList<Command> commands;
    bool isBelow = false;
    for (const QString &line : content.split(QLatin1Char('\n'))) {
        const bool isCode = line.startsWith(codeIndent);
        const QString code = line.mid(codeIndent.size());
        if (isCode && code.startsWith(prompt))
            commands.append({code.mid(prompt.size()), {}});
        else if (isCode && isBelow)
            commands.last().output.append(code);
        isBelow = isCode && (isBelow || code.startsWith(prompt));
    }
    return commands;
}

QStringList DocumentPage::anchors() const
{
    static const QRegularExpression dropped(QStringLiteral("[^\\w\\- ]"));
    QStringList anchors;
    for (QString heading : captures(content, QStringLiteral("^#+ (.*)$")))
        anchors.append(heading.toLower().remove(dropped).replace(QLatin1Char(' '), QLatin1Char('-')));
    return anchors;
}

QStringList DocumentPage::links() const
{
    return captures(content, QStringLiteral("\\]\\(([^)\\s]+)\\)"));
}

QStringList DocumentPage::cells(const QString &text, int column)
{
    static const QRegularExpression rule(QStringLiteral("^\\|[-|]+\\|$"));
    QStringList found;
    bool isBelowRule = false;
    for (const QString &line : text.split(QLatin1Char('\n'))) {
        const QStringList cells = line.startsWith(QLatin1Char('|')) ? cellsOf(line) : QStringList();
        if (isBelowRule && cells.size() > column)
            found.append(cells.at(column).trimmed());
        isBelowRule = line.startsWith(QLatin1Char('|')) && (isBelowRule || rule.match(line).hasMatch());
    }
    return found;
}

QStringList DocumentPage::code(const QString &text)
{
    return captures(text, QStringLiteral("`([^`\\n]+)`"));
}
