#pragma once

#include "ToolError.h"
#include "schema/SchemaOptions.h"

namespace plix::tool {

// Throws ToolError if the file cannot be written.
ExitCode writeSchema(const SchemaOptions& options);

} // namespace plix::tool
