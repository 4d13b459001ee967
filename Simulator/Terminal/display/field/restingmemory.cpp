#include "restingmemory.h"

#include "fieldcanvas.h"

#include <malloc.h>

namespace {

constexpr int restMs = 1000;
/// Blocks of at least this size (bytes) come from the system one by one and go back to it when they are freed.
constexpr int largeBlock = 1 << 20;
/// This much free memory at the heap's end (bytes) is kept; otherwise every frame would fetch the memory for its
/// triangles from the system again.
constexpr int keptHeap = 1 << 26;

} // namespace

RestingMemory::RestingMemory(FieldCanvas &fieldCanvas)
    : canvas(fieldCanvas)
{
    // By default the allocator comes to keep blocks of up to 32 MB. Most belong to loading threads, and it never gives
    // those back: 150 bytes for each cell of a map.
    mallopt(M_MMAP_THRESHOLD, largeBlock);
    mallopt(M_TRIM_THRESHOLD, keptHeap);
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
