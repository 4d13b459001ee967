#include "footprint.h"

#include "files.h"
#include "liveobjects.h"

#include <QDir>
#include <QFile>

#include <malloc.h>
#include <unistd.h>

Footprint Footprint::now()
{
    Footprint now;
    // Gives back what the allocator keeps for later, so that only what is in use counts as resident.
    malloc_trim(0);
    const struct mallinfo2 heap = mallinfo2();
    now.heap = qint64(heap.uordblks + heap.hblkhd);
    now.resident =
        readFile(QStringLiteral("/proc/self/statm")).split(' ').value(1).toLongLong() * sysconf(_SC_PAGESIZE);
    const auto entriesOf = [](const char *folder) {
        return QDir(QLatin1String(folder)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
    };
    now.handles = entriesOf("/proc/self/fd");
    now.threads = entriesOf("/proc/self/task");
    now.objects = LiveObjects::count();
    now.timers = LiveObjects::timers();
    now.connections = LiveObjects::connections();
    return now;
}

bool Footprint::countsNoMoreThan(const Footprint &other) const
{
    return handles <= other.handles && threads <= other.threads && objects <= other.objects && timers <= other.timers
        && connections <= other.connections;
}
