#include "Framework/orvikdebugclass.h"

#include <mutex>

class OrvikDebugClassPrivate {
public:
    // Recursive: what is written under the lock may itself take it.
    std::recursive_mutex mutex;
};

ORVIK_DEBUG_CLASS::ORVIK_DEBUG_CLASS()
    : d(new OrvikDebugClassPrivate)
{
}

ORVIK_DEBUG_CLASS::~ORVIK_DEBUG_CLASS() = default;

ORVIK_DEBUG_CLASS *ORVIK_DEBUG_CLASS::init()
{
    static ORVIK_DEBUG_CLASS *const object = new ORVIK_DEBUG_CLASS;
    return object;
}

void ORVIK_DEBUG_CLASS::lock()
{
    d->mutex.lock();
}

void ORVIK_DEBUG_CLASS::unlock()
{
    d->mutex.unlock();
}
