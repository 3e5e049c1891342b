#pragma once

#include "model/format/PlixFormat.h"

#include <QString>

namespace plix::tool {

// The keys of a component or a part as a Markdown table, in the order in which they are
// read.
QString keyTable(const PlixFormatComponent& component);

} // namespace plix::tool
