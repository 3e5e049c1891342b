#pragma once

#include "check/CardItem.h"
#include "check/Finding.h"

namespace plix::tool {

// Checks a component in its place: keys without effect there, and keys that are missing.
void checkItem(const CardItem& item, Findings& findings);

// Checks the styles of the zones.
void checkZoneStyles(const JsonNode& bubble, Findings& findings);

// Checks an action as a whole.
void checkAction(const JsonNode& action, const QString& path, Findings& findings);

} // namespace plix::tool
