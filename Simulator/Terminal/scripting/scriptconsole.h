#pragma once

#include <QObject>
#include <QString>

/// Where a script writes.
class ScriptConsole : public QObject {
    Q_OBJECT

public:
    using QObject::QObject;

    /// One line on standard output, at once.
    Q_INVOKABLE void writeLine(const QString &line) const;
};
