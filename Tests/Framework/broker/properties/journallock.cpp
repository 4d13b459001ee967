#include "journallock.h"

JournalLock::JournalLock(AccessJournal &accessJournal)
    : journal(accessJournal)
{
}

void JournalLock::lock(int mode)
{
    ++depth;
    journal.note(QStringLiteral("lock %1").arg(mode));
}

void JournalLock::unlock()
{
    --depth;
    journal.note(QStringLiteral("unlock"));
}
