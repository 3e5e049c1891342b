#pragma once

#include <string>

namespace plix::test {

// What reading and building an example card costs, in counts that do not depend on the
// machine.
struct CardWork {
    // How often Yoga measured or laid out a node, or used a remembered size.
    long visits = 0;
    // How often Yoga measured a text.
    long measureCalls = 0;
    // Of memory, by the library and by Qt for it.
    long allocations = 0;
};

// The maximum for an example card. Fails the test for a card that has none.
CardWork maximumWork(const std::string& card);

} // namespace plix::test
