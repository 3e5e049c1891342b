#pragma once

#include <string>

namespace plix::test {

// The JSON of the n-th card. All have the same items, one of each kind, but words, colours
// and links of their own.
std::string soakCard(int n);

} // namespace plix::test
