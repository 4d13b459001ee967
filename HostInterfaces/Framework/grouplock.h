#pragma once

#include "Framework/frameworkglobal.h"

/// The lock that guards the values of a group in thread-safe mode. Hooks and validators run while it is held and may
/// read the same group, so an implementation is recursive.
class FRAMEWORK_EXPORT GroupLock {
public:
    virtual ~GroupLock();

    /// Takes the lock; `mode` is always 0.
    virtual void lock(int mode) = 0;
    virtual void unlock() = 0;
};
