#include "process.h"

#include <QDir>
#include <QFile>
#include <QProcessEnvironment>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fcntl.h>
#include <malloc.h>
#include <new>
#include <unistd.h>
#include <vector>

namespace {

bool wasOutputClosed = false;
bool isDisplayWatched = false;

/// Exceptions cannot unwind through Qt's own code. When a script's text or list outgrows the memory, that must still be
/// a plain error; when a plug-in throws, the message says so before the program ends.
[[noreturn]] void endByException()
{
    try {
        if (const std::exception_ptr thrown = std::current_exception())
            std::rethrow_exception(thrown);
    } catch (const std::bad_alloc &) {
        std::fputs("terminal-simulator: there is not enough memory\n", stderr);
        _exit(1);
    } catch (const std::exception &thrown) {
        std::fprintf(stderr, "terminal-simulator: an exception that nobody caught, maybe a plug-in's: %s\n",
                     thrown.what());
    } catch (...) {
    }
    std::abort();
}

/// A closed stream's place would be taken by the display's socket, and what is printed would go to the display.
void reserveStandardStreams()
{
    int opened = 0;
    do {
        opened = open("/dev/null", O_RDWR);
        wasOutputClosed = wasOutputClosed || opened == STDOUT_FILENO;
    } while (opened >= 0 && opened <= STDERR_FILENO);
    if (opened >= 0)
        close(opened);
}

/// What somebody has set for other programs that read maps, in the environment or in a file for all of them, must not
/// change how this one reads them.
void dropSettingsOfOtherPrograms()
{
    const QStringList names = QProcessEnvironment::systemEnvironment().keys();
    for (const QString &name : names) {
        for (const char *prefix : {"CPL_", "GDAL_", "GML_", "KML_", "LIBKML_", "OGR_", "OSR_", "SHAPE_"}) {
            // Where the library has its own tables is up to the installation.
            if (name.startsWith(QLatin1String(prefix)) && name != QLatin1String("GDAL_DATA"))
                qunsetenv(name.toLocal8Bit().constData());
        }
    }
    qputenv("GDAL_CONFIG_FILE", "/dev/null");
}

/// By default the allocator ends up keeping blocks of up to 32 MB. Most belong to loading threads, and it never gives
/// those back: 150 bytes for each cell of a map.
void giveLargeBlocksBack()
{
    // Blocks of at least this size (bytes) come from the system one by one and go back to it when they are freed.
    constexpr int largeBlock = 1 << 20;
    // This much free memory at the heap's end (bytes) is kept; otherwise every frame would fetch the memory for its
    // triangles from the system again.
    constexpr int keptHeap = 1 << 26;
    mallopt(M_MMAP_THRESHOLD, largeBlock);
    mallopt(M_TRIM_THRESHOLD, keptHeap);
}

void endWithoutDisplay()
{
    if (!isDisplayWatched)
        return;
    std::fputs("terminal-simulator: the display's server is gone\n", stderr);
    std::fflush(stdout);
    _exit(1);
}

} // namespace

void Process::prepare()
{
    reserveStandardStreams();
    // A file-size limit is then reported like a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    dropSettingsOfOtherPrograms();
    giveLargeBlocksBack();
    std::set_terminate(endByException);
}

QString Process::openFilesProblem()
{
    // Half as many are open at one time when a script loads a map.
    constexpr int needed = 32;
    std::vector<int> opened;
    int handle = dup(STDERR_FILENO);
    for (; handle >= 0 && handle < needed - 1; handle = dup(STDERR_FILENO))
        opened.push_back(handle);
    if (handle >= 0)
        close(handle);
    for (const int other : opened)
        close(other);
    return handle >= 0
        ? QString()
        : QStringLiteral("fewer than %1 files may be open at once (ulimit -n), which are needed").arg(needed);
}

void Process::refuseLostOutput()
{
    if (!wasOutputClosed)
        return;
    const int full = open("/dev/full", O_WRONLY);
    dup2(full, STDOUT_FILENO);
    close(full);
}

void Process::provideRuntimeFolder()
{
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR",
                QFile::encodeName(QDir::temp().filePath(QStringLiteral("runtime-%1").arg(getuid()))));
}

Process::DisplayWatch::DisplayWatch()
{
    isDisplayWatched = true;
    // Registered last, called first.
    std::atexit(endWithoutDisplay);
}

Process::DisplayWatch::~DisplayWatch()
{
    isDisplayWatched = false;
}
