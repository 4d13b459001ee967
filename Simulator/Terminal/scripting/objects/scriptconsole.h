#pragma once

#include <QObject>
#include <QString>

/// Where a script writes.
class ScriptConsole : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// One line on standard output, at once, as VisibleText; line breaks and tabs are the script's own.
    Q_INVOKABLE void writeLine(const QString &line) const;
};
