#pragma once

#include "ToolCommand.h"

namespace plix::tool {

// "plix schema".
ToolCommand schemaCommand();

} // namespace plix::tool
