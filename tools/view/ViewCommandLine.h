#pragma once

#include "ToolCommand.h"

#include <QLatin1String>

namespace plix::tool {

inline const QLatin1String kViewCommand("view");

// "plix view".
ToolCommand viewCommand();

} // namespace plix::tool
