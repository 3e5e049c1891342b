#pragma once

#include <cstdint>

namespace plix::test {

// What is allocated with operator new at the moment. The test program that has this
// in it replaces operator new for itself and all libraries. What Qt's containers
// allocate does not count: they use malloc().
struct HeapUse {
    std::int64_t blocks = 0;
    // What the blocks can hold, which is a few bytes more than what was asked for.
    std::int64_t bytes = 0;
};

HeapUse heapUse();

inline HeapUse operator-(const HeapUse& after, const HeapUse& before)
{
    return {after.blocks - before.blocks, after.bytes - before.bytes};
}

} // namespace plix::test
