#pragma once

#include <cstdint>

namespace plix::test {

// What a card keeps on the heap for good: its data, which items that outlive their
// controller must still find.
class RegistryBytes {
public:
    // Measures what is the same for all cards. The heap must be counted.
    RegistryBytes();

    // Of a card whose data took `read` bytes when it was read, and that was built with so
    // many items.
    std::int64_t ofCard(std::int64_t read, int items) const;

private:
    std::int64_t bubble_;
    std::int64_t entry_;
};

} // namespace plix::test
