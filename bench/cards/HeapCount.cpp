#include "HeapCount.h"

#include <atomic>
#include <cerrno>
#include <cstddef>
#include <malloc.h>

// glibc's own functions under their second names.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
void __libc_free(void* block);
}

namespace {

std::atomic<bool> counting {false};
std::atomic<std::int64_t> allocations {0};
std::atomic<std::int64_t> liveBytes {0};

bool isCounting()
{
    return counting.load(std::memory_order_relaxed);
}

void add(void* block, std::int64_t sign)
{
    const auto size = static_cast<std::int64_t>(malloc_usable_size(block));
    liveBytes.fetch_add(sign * size, std::memory_order_relaxed);
}

void* counted(void* block)
{
    if (block && isCounting()) {
        allocations.fetch_add(1, std::memory_order_relaxed);
        add(block, 1);
    }
    return block;
}

void uncount(void* block)
{
    if (block && isCounting())
        add(block, -1);
}

} // namespace

// The libraries have to find these.
#define BENCH_REPLACES_LIBC extern "C" __attribute__((visibility("default")))

BENCH_REPLACES_LIBC void* malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

BENCH_REPLACES_LIBC void* calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

BENCH_REPLACES_LIBC void* realloc(void* block, std::size_t size)
{
    uncount(block);
    return counted(__libc_realloc(block, size));
}

BENCH_REPLACES_LIBC void* memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

BENCH_REPLACES_LIBC void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

BENCH_REPLACES_LIBC int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    *block = counted(__libc_memalign(alignment, size));
    return *block ? 0 : ENOMEM;
}

BENCH_REPLACES_LIBC void free(void* block)
{
    uncount(block);
    __libc_free(block);
}

namespace bench {

HeapCount operator+(const HeapCount& one, const HeapCount& other)
{
    return {one.allocations + other.allocations, one.liveBytes + other.liveBytes};
}

HeapCount operator-(const HeapCount& after, const HeapCount& before)
{
    return {after.allocations - before.allocations, after.liveBytes - before.liveBytes};
}

HeapCount heapCount()
{
    return {allocations.load(), liveBytes.load()};
}

void setHeapCounting(bool on)
{
    counting = on;
}

} // namespace bench
