#pragma once

#include "Options.h"
#include "ToolError.h"

namespace plix::tool {

// Carries the command out. Throws ToolError when it cannot.
ExitCode run(const Options& options);

} // namespace plix::tool
