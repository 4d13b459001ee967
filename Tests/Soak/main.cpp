// Uses a terminal with the loaded plug-in for a long time, and prints how much it holds before, in between and after.
// Status 1 when that has grown by more than docs/reliability.md states.
//   rxmap-soak [--share PART]    PART of the whole, such as 0.01; 1 is usual
#include "footprint.h"
#include "liveobjects.h"
#include "ownlooks.h"
#include "usedterminal.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLoggingCategory>

#include <cmath>
#include <cstdio>

namespace {

/// One way of using the terminal.
struct Use {
    const char *name;
    int times;
    void (UsedTerminal::*once)(int number);
    /// How often it is used until everything that is made only once, or kept only for the latest uses, exists.
    int before;
    /// Bytes that stay behind after each use, and bytes that it holds after long use; both as docs/reliability.md
    /// states.
    int leftEachTime;
    int held;
};

constexpr int tessellator = 3672;
constexpr int workedGround = 6 << 20;
constexpr int usual = 20;
constexpr int keptGroups = 70;

constexpr Use uses[] = {
    {"rebuilds", 50000, &UsedTerminal::rebuild, usual, 0, 0},
    {"rebuilds without a map", 1000, &UsedTerminal::rebuildWithoutMap, usual, tessellator, 0},
    {"dialogs", 5000, &UsedTerminal::useDialog, usual, 0, 0},
    {"loads", 1000, &UsedTerminal::load, keptGroups, 0, 0},
    {"10 s of driving", 3600, &UsedTerminal::drive, usual, 0, workedGround},
};

/// How much more the allocator may have given out and the process may have in memory: for caches, and depending on the
/// order in which memory is freed.
constexpr qint64 heapLeeway = 256 << 10;
constexpr qint64 memoryLeeway = 8 << 20;

void print(const Use &use, int times, const Footprint &footprint)
{
    std::printf("%-24s %7d %10.1f %10.1f %7d %7d %7d %7d %11d\n", use.name, times, double(footprint.heap) / 1024.0,
                double(footprint.resident) / 1024.0, footprint.handles, footprint.threads, footprint.objects,
                footprint.timers, footprint.connections);
    std::fflush(stdout);
}

bool hasGrown(const Use &use, int times, const Footprint &before, const Footprint &after)
{
    const qint64 stated = qint64(times) * use.leftEachTime + use.held;
    return after.heap - before.heap > stated + heapLeeway || after.resident - before.resident > stated + memoryLeeway
        || !after.countsNoMoreThan(before);
}

Footprint useSoOften(UsedTerminal &terminal, const Use &use, int &done, int times)
{
    for (; done < times; ++done)
        (terminal.*use.once)(done);
    terminal.settle();
    const Footprint now = Footprint::now();
    print(use, done, now);
    return now;
}

bool staysFlat(UsedTerminal &terminal, const Use &use, double share)
{
    const int times = use.before + int(std::lround(share * use.times));
    int done = 0;
    const Footprint before = useSoOften(terminal, use, done, use.before);
    useSoOften(terminal, use, done, (use.before + times) / 2);
    const Footprint after = useSoOften(terminal, use, done, times);
    const bool grew = hasGrown(use, times - use.before, before, after);
    if (grew)
        std::printf("%s: it has grown\n", use.name);
    return !grew;
}

} // namespace

int main(int argumentCount, char **arguments)
{
    LiveObjects::watch();
    // A display without a window manager refuses to give dialogs the keyboard, and Qt warns each time.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.qpa.xcb=false"));
    OwnLooks::fixResolution();
    const QApplication application(argumentCount, arguments);
    OwnLooks::apply();
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("share"), QString(), QStringLiteral("PART"), QStringLiteral("1")});
    parser.process(application);

    UsedTerminal terminal;
    if (!terminal.problem().isEmpty())
        qFatal("%s", qPrintable(terminal.problem()));
    std::printf("%-24s %7s %10s %10s %7s %7s %7s %7s %11s\n", "", "times", "heap KiB", "memory KiB", "handles",
                "threads", "objects", "timers", "connections");
    bool isFlat = true;
    for (const Use &use : uses)
        isFlat = staysFlat(terminal, use, parser.value(QStringLiteral("share")).toDouble()) && isFlat;
    return isFlat ? 0 : 1;
}
