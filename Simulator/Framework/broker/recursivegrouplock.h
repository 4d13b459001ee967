#pragma once

#include "Framework/grouplock.h"

#include <mutex>

/// The lock that a group has unless its creator gives it another.
class RecursiveGroupLock : public GroupLock {
public:
    void lock(int mode) override;
    void unlock() override;

private:
    std::recursive_mutex mutex;
};
