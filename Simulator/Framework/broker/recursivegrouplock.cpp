#include "recursivegrouplock.h"

void RecursiveGroupLock::lock(int)
{
    mutex.lock();
}

void RecursiveGroupLock::unlock()
{
    mutex.unlock();
}
