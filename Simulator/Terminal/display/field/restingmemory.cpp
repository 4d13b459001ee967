#include "restingmemory.h"

#include "fieldcanvas.h"

#include <malloc.h>

namespace {

constexpr int restMs = 1000;
/// Blocks from this size on are had from the system one by one, and given back when they are freed, bytes.
constexpr int largeBlock = 1 << 20;
/// So much that is free at the heap's end is kept: a frame's triangles would else be had anew for each frame, bytes.
constexpr int keptHeap = 1 << 26;

} // namespace

RestingMemory::RestingMemory(FieldCanvas &fieldCanvas)
    : canvas(fieldCanvas)
{
    // Left to itself the allocator comes to keep blocks of up to 32 MB, most of all those of a loading thread, which it
    // never gives back: 150 bytes for each cell of a map.
    mallopt(M_MMAP_THRESHOLD, largeBlock);
    mallopt(M_TRIM_THRESHOLD, keptHeap);
    rest.setSingleShot(true);
    rest.setInterval(restMs);
    connect(&rest, &QTimer::timeout, this, &RestingMemory::giveBack);
}

void RestingMemory::giveBack()
{
    canvas.forgetFrame();
    // What was freed lies between what is kept, where the allocator leaves it.
    malloc_trim(0);
}
