// The process's malloc family, passed on to the C library's own under the names that glibc gives it.

#include "allocationmeter.h"

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <malloc.h>

extern "C" {
void *__libc_malloc(size_t size);
void *__libc_calloc(size_t count, size_t size);
void *__libc_realloc(void *block, size_t size);
void *__libc_memalign(size_t alignment, size_t size);
void __libc_free(void *block);
}

namespace {

bool isMetering = false;
std::int64_t inUse = 0;
std::int64_t most = 0;

void *taken(void *block)
{
    if (isMetering && block != nullptr) {
        inUse += static_cast<std::int64_t>(malloc_usable_size(block));
        most = std::max(most, inUse);
    }
    return block;
}

void given(std::size_t size)
{
    if (isMetering)
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

// The sanitizers bring a malloc family of their own.
#ifndef __SANITIZE_ADDRESS__

extern "C" {

void *malloc(size_t size)
{
    return taken(__libc_malloc(size));
}

void *calloc(size_t count, size_t size)
{
    return taken(__libc_calloc(count, size));
}

void *realloc(void *block, size_t size)
{
    const std::size_t before = malloc_usable_size(block);
    void *moved = __libc_realloc(block, size);
    if (moved != nullptr || size == 0)
        given(before);
    return taken(moved);
}

void *memalign(size_t alignment, size_t size)
{
    return taken(__libc_memalign(alignment, size));
}

void *aligned_alloc(size_t alignment, size_t size)
{
    return taken(__libc_memalign(alignment, size));
}

int posix_memalign(void **block, size_t alignment, size_t size)
{
    *block = taken(__libc_memalign(alignment, size));
    return *block == nullptr ? ENOMEM : 0;
}

void free(void *block)
{
    given(malloc_usable_size(block));
    __libc_free(block);
}

} // extern "C"

#endif
