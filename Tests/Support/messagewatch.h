#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Collects what the process writes through Qt's message handler while it lives. Warnings and worse are complaints
/// unless they were expected. Messages may come from any thread.
class MessageWatch {
public:
    MessageWatch();
    ~MessageWatch();

    /// Declares a warning that is to come, once, with exactly this text.
    void expectWarning(const QString &text);
    /// All debug lines so far, oldest first.
    QStringList debugLines() const;
    /// All warnings so far, expected ones included, oldest first.
    QStringList warnings() const;
    void clear();
    /// What is wrong: unexpected warnings, and expected ones that did not come. Empty when all is well.
    QStringList complaints() const;

private:
    Q_DISABLE_COPY(MessageWatch)
};
