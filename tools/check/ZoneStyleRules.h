#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"

namespace plix::tool {

// Checks the styles of a card's zones for keys without effect.
void checkZoneStyles(const JsonNode& bubble, Findings& findings);

} // namespace plix::tool
