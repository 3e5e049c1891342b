#pragma once

#include "Request.h"

#include <QStringList>

namespace plix::tool {

// Throws ToolError if the arguments are wrong. `arguments` starts with the name of
// the program.
Request parseCommandLine(const QStringList& arguments);

} // namespace plix::tool
