#pragma once

#include <QString>
#include <QStringList>

/// What happened, in order.
class AccessJournal {
public:
    void note(const QString &event) { events.append(event); }
    QStringList taken();

    /// Hooks and validators that take a journal as their argument.
    static void noteBefore(void *journal);
    static void noteAfter(void *journal);

private:
    QStringList events;
};
