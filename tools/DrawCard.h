#pragma once

#include "Options.h"

#include <QImage>

namespace plix::tool {

// The picture of the card in the file at `path`. Throws ToolError when there is
// none.
QImage drawCard(const QString& path, const Options& options);

} // namespace plix::tool
