#include "accessjournal.h"

QStringList AccessJournal::taken()
{
    QStringList result;
    result.swap(events);
    return result;
}

void AccessJournal::noteBefore(void *journal)
{
    static_cast<AccessJournal *>(journal)->note(QStringLiteral("before"));
}

void AccessJournal::noteAfter(void *journal)
{
    static_cast<AccessJournal *>(journal)->note(QStringLiteral("after"));
}
