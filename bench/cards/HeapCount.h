#pragma once

#include <cstdint>

namespace bench {

// What goes through malloc and its relatives. The program replaces them for
// itself and all libraries, so Qt's allocations count, too.
struct HeapCount {
    std::int64_t allocations = 0;
    // Usable bytes of the blocks that were allocated, less those that were freed.
    std::int64_t liveBytes = 0;
};

HeapCount operator+(const HeapCount& one, const HeapCount& other);
HeapCount operator-(const HeapCount& after, const HeapCount& before);

// Since the start of counting. Counting is off at first and costs one
// comparison for each call then.
HeapCount heapCount();
void setHeapCounting(bool on);

} // namespace bench
