#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"

#include <QString>

namespace plix::tool {

// Checks an action as a whole.
void checkAction(const JsonNode& action, const QString& path, Findings& findings);

} // namespace plix::tool
