#pragma once

#include "ToolCommand.h"

#include <QLatin1String>

#include <vector>

namespace plix::tool {

inline const QLatin1String
    kDrawExitCodes("\nExit codes:\n"
                   "  0  done, with or without warnings\n"
                   "  1  a file is not a card: not a JSON object of the \"type\" \"bubble\"\n"
                   "  2  wrong usage, or a file that cannot be read or written");

// "plix render", "plix layout" and "plix gallery".
std::vector<ToolCommand> drawCommands();

} // namespace plix::tool
