#pragma once

#include "Options.h"

#include <QStringList>
#include <QVector>

namespace plix::tool {

class CommandParser;

// The options of a command that shows cards.
void addCardOptions(CommandParser& parser);

// Throws ToolError for values that cannot be read.
CardOptions readCardOptions(const CommandParser& parser);

// For a command that shows each card in several languages and heights.
QStringList readLanguages(const CommandParser& parser);
QVector<int> readHeights(const CommandParser& parser);

} // namespace plix::tool
