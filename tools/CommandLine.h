#pragma once

#include "Options.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace plix::tool {

// The text to print for "--help" or "--version".
struct Information {
    QString text;
};

// Throws ToolError if the arguments are wrong. `arguments` starts with the name of
// the program.
std::variant<Options, Information> parseCommandLine(const QStringList& arguments);

} // namespace plix::tool
