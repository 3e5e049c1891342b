#pragma once

#include <QString>

namespace plix::tool {

struct SchemaOptions {
    // Standard output if empty.
    QString output;
};

} // namespace plix::tool
