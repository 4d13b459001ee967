// What the leak check at the end of a program needs: libraries loaded at run time stay loaded, so that it can name what
// the OpenGL driver keeps, and threads that have ended are gone, since it breaks off over one that goes while it looks.

#include <QtGlobal>

#include <cstdlib>
#include <dirent.h>
#include <unistd.h>

extern "C" Q_DECL_EXPORT int dlclose(void * /*handle*/)
{
    return 0;
}

namespace {

/// Threads of the process that the kernel still lists.
int threadCount()
{
    int count = 0;
    DIR *tasks = opendir("/proc/self/task");
    while (tasks != nullptr) {
        const dirent *entry = readdir(tasks);
        if (entry == nullptr)
            break;
        count += entry->d_name[0] == '.' ? 0 : 1;
    }
    if (tasks != nullptr)
        closedir(tasks);
    return count;
}

void waitForEndedThreads()
{
    constexpr int mostRounds = 100;
    constexpr useconds_t roundUs = 2000;
    for (int round = 0; round < mostRounds && threadCount() > 1; ++round)
        usleep(roundUs);
}

/// Entered before the program's own, so that it is called after those, and before the leak check.
__attribute__((constructor(101))) void enterWait()
{
    std::atexit(waitForEndedThreads);
}

} // namespace
