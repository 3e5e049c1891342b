#pragma once

#include "ToolCommand.h"

#include <QLatin1String>

namespace plix::tool {

inline const QLatin1String kCheckCommand("check");
// Checks the files whose names come from standard input. Not for users.
inline const QLatin1String kWorkerOption("worker");

// "plix check".
ToolCommand checkCommand();

} // namespace plix::tool
