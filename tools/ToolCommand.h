#pragma once

#include "Request.h"

#include <QLatin1String>

#include <functional>

namespace plix::tool {

class CommandParser;

// A command of the tool, such as "plix render".
struct ToolCommand {
    QLatin1String name;
    QLatin1String summary; // a line for the list of commands
    QLatin1String text;
    QLatin1String examples;
    QLatin1String exitCodes;
    // Adds the arguments that the command takes, apart from its name and --help.
    std::function<void(CommandParser& parser)> addArguments;
    // Throws ToolError if the arguments are wrong.
    std::function<Request(const CommandParser& parser)> readArguments;
};

} // namespace plix::tool
