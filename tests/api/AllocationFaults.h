#pragma once

namespace plix::test {

// Makes operator new throw std::bad_alloc, as it does when there is no memory left. The
// test program that has this in it replaces operator new for itself and all libraries.
//
// Only calls from the code of the library fail, also those that it makes through the
// standard library, Yoga and jsoncpp. Qt's own do not: Qt does not promise to survive that.
// One at a time.
class AllocationFaults {
public:
    enum class Kind { Single, Lasting };

    // The calls before the n-th (1, 2, ...) succeed. That call throws, and if the fault is
    // lasting, all that follow.
    AllocationFaults(int n, Kind kind);
    // From here on every call succeeds.
    ~AllocationFaults();

    AllocationFaults(const AllocationFaults&) = delete;
    AllocationFaults& operator=(const AllocationFaults&) = delete;

    // Whether there have been that many calls.
    bool hasThrown() const;
};

// How many blocks of operator new, of whoever's code, are not deleted yet.
int liveBlocks();

} // namespace plix::test
