#pragma once

#include "Options.h"
#include "check/CheckOptions.h"
#include "schema/SchemaOptions.h"
#include "view/ViewOptions.h"

#include <QString>

#include <variant>

namespace plix::tool {

// The text to print for "--help" or "--version".
struct Information {
    QString text;
};

// What the tool shall do.
using Request = std::variant<Options, CheckOptions, SchemaOptions, ViewOptions, Information>;

} // namespace plix::tool
