#pragma once

#include "check/CardItem.h"
#include "check/Finding.h"

namespace plix::tool {

// Checks a component in its place: keys without effect there, and keys that are missing.
void checkItem(const CardItem& item, Findings& findings);

} // namespace plix::tool
