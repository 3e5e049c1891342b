#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"

#include "model/format/PlixFormatKey.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string_view>

namespace plix::tool {

// Checks a value of the right kind: whether the library knows its word, and can read its
// length, colour, ratio or number.
void checkValue(const PlixFormatKey& key, const JsonNode& value, const QString& path,
                Findings& findings);

// The words of a key.
QStringList wordsOf(const PlixFormatKey& key);

// The number of pixels in a text such as "8px" or "8"; nothing if it is no number.
std::optional<int> pixelsIn(std::string_view text);

// The percentage in a text such as "50%"; nothing if it is none.
std::optional<int> percentIn(std::string_view text);

} // namespace plix::tool
