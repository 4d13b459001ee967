// Without sanitizers the malloc family defined here stands in front of the C library's own, which it calls by glibc's
// names for it; with them, the sanitizer reports every block.

#include "allocationmeter.h"

#include <algorithm>
#include <cstdint>

namespace {

bool isMetering = false;
std::int64_t inUse = 0;
std::int64_t most = 0;

void taken(std::size_t size)
{
    inUse += static_cast<std::int64_t>(size);
    most = std::max(most, inUse);
}

void given(std::size_t size)
{
    inUse -= static_cast<std::int64_t>(size);
}

} // namespace

AllocationMeter::AllocationMeter()
{
    inUse = 0;
    most = 0;
    isMetering = true;
}

AllocationMeter::~AllocationMeter()
{
    isMetering = false;
}

std::size_t AllocationMeter::peak() const
{
    return static_cast<std::size_t>(most);
}

AllocationMeter::Pause::Pause()
    : wasMetering(isMetering)
{
    isMetering = false;
}

AllocationMeter::Pause::~Pause()
{
    isMetering = wasMetering;
}

#ifdef RXMAP_SANITIZED

extern "C" {

std::size_t __sanitizer_get_allocated_size(const volatile void *block);
int __sanitizer_install_malloc_and_free_hooks(void (*onMalloc)(const volatile void *, std::size_t),
                                              void (*onFree)(const volatile void *));

} // extern "C"

namespace {

void onMalloc(const volatile void * /*block*/, std::size_t size)
{
    if (isMetering)
        taken(size);
}

void onFree(const volatile void *block)
{
    if (isMetering && block != nullptr)
        given(__sanitizer_get_allocated_size(block));
}

const int hooks = __sanitizer_install_malloc_and_free_hooks(onMalloc, onFree);

} // namespace

#else

#include <cerrno>
#include <malloc.h>

extern "C" {

void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
void __libc_free(void *block);

} // extern "C"

namespace {

// Only tests a flag while nobody meters: other benchmarks run through here, too.
void *metered(void *block)
{
    if (isMetering)
        taken(malloc_usable_size(block));
    return block;
}

} // namespace

// Every library must find these functions, whatever visibility the C library's headers give them.
#pragma GCC visibility push(default)
extern "C" {

void *malloc(size_t size)
{
    return metered(__libc_malloc(size));
}

void *calloc(size_t count, size_t size)
{
    return metered(__libc_calloc(count, size));
}

void *realloc(void *block, size_t size)
{
    const std::size_t before = isMetering ? malloc_usable_size(block) : 0;
    void *moved = __libc_realloc(block, size);
    const bool isGiven = isMetering && (moved != nullptr || size == 0);
    // A block that moves exists twice for a while.
    if (isGiven && moved == block)
        given(before);
    metered(moved);
    if (isGiven && moved != block)
        given(before);
    return moved;
}

void *memalign(size_t alignment, size_t size)
{
    return metered(__libc_memalign(alignment, size));
}

void *aligned_alloc(size_t alignment, size_t size)
{
    return memalign(alignment, size);
}

int posix_memalign(void **block, size_t alignment, size_t size)
{
    *block = memalign(alignment, size);
    return *block == nullptr ? ENOMEM : 0;
}

void free(void *block)
{
    if (isMetering)
        given(malloc_usable_size(block));
    __libc_free(block);
}

} // extern "C"
#pragma GCC visibility pop

#endif
