#pragma once

#include <cstdint>
#include <vector>

namespace plix::test {

// What a part of a soak took.
struct SoakPart {
    int cards;
    double microseconds; // of the thread
    std::int64_t heapBytes; // growth
    std::int64_t registryBytes; // of this growth, what the registry keeps
    std::int64_t residentBytes; // of the process, at the end of the part

    double microsecondsPerCard() const { return microseconds / cards; }
    std::int64_t unexplainedBytes() const { return heapBytes - registryBytes; }
};

// The parts of a soak in their order.
class SoakCurve {
public:
    void add(const SoakPart& part) { parts_.push_back(part); }

    void print() const;
    // Whether the heap grows by what the registry keeps only.
    bool isExplained() const;
    // Whether the last card takes no longer than the first. True for parts that are too
    // short for times.
    bool isFlat() const;

private:
    std::vector<SoakPart> parts_;
};

} // namespace plix::test
