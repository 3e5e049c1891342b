#pragma once

#include "Options.h"
#include "check/CheckOptions.h"
#include "schema/SchemaOptions.h"
#include "view/ViewOptions.h"

#include <QString>
#include <QStringList>

#include <variant>

namespace plix::tool {

// The text to print for "--help" or "--version".
struct Information {
    QString text;
};

using Request = std::variant<Options, CheckOptions, SchemaOptions, ViewOptions, Information>;

// Throws ToolError if the arguments are wrong. `arguments` starts with the name of
// the program.
Request parseCommandLine(const QStringList& arguments);

} // namespace plix::tool
