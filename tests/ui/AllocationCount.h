#pragma once

namespace plix::test {

// How many blocks of memory were allocated so far. The test program that has this in
// it replaces malloc() and its relatives for itself and all libraries.
long allocationCount();

} // namespace plix::test
