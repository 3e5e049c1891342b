#pragma once

#include "Options.h"

#include <variant>

namespace plix::tool {

// A question about the tool itself, "--help" or "--version", answered.
struct Answer {
    QString text;
};

// Throws ToolError when the arguments make no sense. `arguments` starts with
// the program's own name.
std::variant<Options, Answer> parseCommandLine(const QStringList& arguments);

} // namespace plix::tool
