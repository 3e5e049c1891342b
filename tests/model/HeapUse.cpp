#include "model/HeapUse.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::atomic<std::int64_t> blocks {0};
std::atomic<std::int64_t> bytes {0};

void count(void* block, std::int64_t sign)
{
    blocks += sign;
    bytes += sign * static_cast<std::int64_t>(malloc_usable_size(block));
}

void release(void* block) noexcept
{
    if (!block)
        return;
    count(block, -1);
    std::free(block);
}

} // namespace

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    void* const block = std::malloc(size);
    if (block)
        count(block, 1);
    return block;
}

void* operator new(std::size_t size)
{
    void* const block = operator new(size, std::nothrow);
    if (!block)
        throw std::bad_alloc();
    return block;
}

void operator delete(void* block) noexcept
{
    release(block);
}

void operator delete(void* block, std::size_t) noexcept
{
    release(block);
}

namespace plix::test {

HeapUse heapUse()
{
    return {blocks, bytes};
}

} // namespace plix::test
