#include "ui/AllocationCount.h"

#include <atomic>
#include <cerrno>
#include <cstddef>

// glibc's own functions under their second names.
// NOLINTBEGIN(readability-identifier-naming)
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
void* __libc_memalign(std::size_t alignment, std::size_t size);
}
// NOLINTEND(readability-identifier-naming)

namespace {

std::atomic<long> allocations {0};

void* counted(void* block)
{
    if (block)
        allocations.fetch_add(1, std::memory_order_relaxed);
    return block;
}

} // namespace

// The libraries have to find these.
#define PLIX_REPLACES_LIBC extern "C" __attribute__((visibility("default")))

PLIX_REPLACES_LIBC void* malloc(std::size_t size)
{
    return counted(__libc_malloc(size));
}

PLIX_REPLACES_LIBC void* calloc(std::size_t count, std::size_t size)
{
    return counted(__libc_calloc(count, size));
}

PLIX_REPLACES_LIBC void* realloc(void* block, std::size_t size)
{
    return counted(__libc_realloc(block, size));
}

PLIX_REPLACES_LIBC void* memalign(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

PLIX_REPLACES_LIBC void* aligned_alloc(std::size_t alignment, std::size_t size)
{
    return counted(__libc_memalign(alignment, size));
}

PLIX_REPLACES_LIBC int posix_memalign(void** block, std::size_t alignment, std::size_t size)
{
    *block = counted(__libc_memalign(alignment, size));
    return *block ? 0 : ENOMEM;
}

namespace plix::test {

long allocationCount()
{
    return allocations;
}

} // namespace plix::test
