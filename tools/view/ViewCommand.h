#pragma once

#include "ToolError.h"
#include "view/ViewOptions.h"

namespace plix::tool {

// "plix view": shows the window until the user closes it. Throws ToolError if the card
// cannot be read.
ExitCode runView(const ViewOptions& options);

} // namespace plix::tool
