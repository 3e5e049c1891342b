#pragma once

#include "Options.h"
#include "ToolError.h"

namespace plix::tool {

// Executes the command. Throws ToolError if it fails.
ExitCode run(const Options& options);

} // namespace plix::tool
