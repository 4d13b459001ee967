#include "restingmemory.h"

#include "fieldcanvas.h"

#include <malloc.h>

namespace {

constexpr int restMs = 1000;

} // namespace

RestingMemory::RestingMemory(FieldCanvas &fieldCanvas)
    : canvas(fieldCanvas)
{
    rest.setSingleShot(true);
    rest.setInterval(restMs);
    connect(&rest, &QTimer::timeout, this, &RestingMemory::giveBack);
}

void RestingMemory::giveBack()
{
    canvas.forgetFrame();
    // Memory that was freed between blocks in use stays with the allocator unless it is asked.
    malloc_trim(0);
}
