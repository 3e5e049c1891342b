#pragma once

#include "Options.h"

#include <QImage>
#include <QString>

namespace plix::tool {

// Draws the card in the file at `path`. Throws ToolError if the file cannot be read
// or is not a card.
QImage drawCard(const QString& path, const Options& options);

} // namespace plix::tool
