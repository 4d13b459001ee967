#include "geosinterrupt.h"

#include <geos_c.h>
#include <stdexcept>

namespace {

thread_local const std::atomic<bool> *cancelFlag = nullptr;

void throwWhenRequested()
{
    if (GeosInterrupt::isRequested())
        throw std::runtime_error("interrupted");
}

} // namespace

GeosInterrupt::GeosInterrupt(const std::atomic<bool> *cancelled)
    : former(cancelFlag)
{
    static GEOSInterruptCallback *const registered = GEOS_interruptRegisterCallback(throwWhenRequested);
    Q_UNUSED(registered);
    cancelFlag = cancelled;
}

GeosInterrupt::~GeosInterrupt()
{
    cancelFlag = former;
}

bool GeosInterrupt::isRequested()
{
    return cancelFlag != nullptr && cancelFlag->load(std::memory_order_relaxed);
}
