#pragma once

#include "check/JsonNode.h"

#include <QByteArray>
#include <QString>

#include <string_view>

namespace plix::tool {

// A part of a card's text for a message: short, and on one line.
QString excerpt(const QByteArray& text, TextRange range);

// In double quotes.
QString quoted(std::string_view word);
QString quoted(const QString& word);

} // namespace plix::tool
