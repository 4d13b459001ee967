#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One page of the documentation, as its readers see it: headings, tables, commands and what those print.
class DocumentPage {
public:
    /// A command of a code block ("$ ..." there) and the lines below it.
    struct Command {
        QString text;
        QStringList output;
    };

    /// `path` is relative to the project's root. A page that cannot be read is empty.
    explicit DocumentPage(const QString &path);
    /// The pages that users of the program read: its README and the other pages, except those about the project itself.
    static QStringList readersPages();

    QString path() const { return name; }
    QString text() const { return content; }
    /// The text below a heading, with the sections below it; empty when there is no such heading.
    QString section(const QString &heading) const;
    QList<Command> commands() const;
    /// The anchors that links to headings end in ("#the-report"), in the order of the headings.
    QStringList anchors() const;
    /// Where the links of the page lead, as written.
    QStringList links() const;

    /// The cells of one column of all tables in a text, without the heads; rows that are too short are left out.
    static QStringList cells(const QString &text, int column);
    /// The texts between backquotes.
    static QStringList code(const QString &text);

private:
    QString name;
    QString content;
};
