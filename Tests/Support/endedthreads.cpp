// Waits until ended threads are gone before the leak check at the end of a program: the check fails over a thread that
// goes while it looks, and reports what such a thread still holds as lost.

#include <cstdlib>
#include <dirent.h>
#include <unistd.h>

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
    constexpr int mostRounds = 500;
    constexpr useconds_t roundUs = 2000;
    for (int round = 0; round < mostRounds && threadCount() > 1; ++round)
        usleep(roundUs);
}

/// Registered before the program's own exit handlers, so that it is called after those and before the leak check.
__attribute__((constructor(101))) void enterWait()
{
    std::atexit(waitForEndedThreads);
}

} // namespace
