#pragma once

#include "check/JsonNode.h"

#include "model/format/PlixFormatKey.h"

#include <QString>

namespace plix::tool {

// The kind of values that a key needs, for messages.
QString kindName(PlixJsonType type);

// Whether the reader takes a value for such a key. It converts some of another kind.
bool isReadable(PlixJsonType type, const JsonNode& value);

// Whether the value is of the kind that the key needs.
bool isOfKind(PlixJsonType type, const JsonNode& value);

// What the reader makes of a value where true or false belongs.
bool flagOf(const JsonNode& value);

// What the reader makes of a value of another kind that it takes, for messages.
QString convertedValue(PlixJsonType type, const JsonNode& value);

// What the author of a value of another kind should write instead; `found` is the value
// as it stands in the text. Empty if that is not known.
QString kindMend(const PlixFormatKey& key, const JsonNode& value, const QString& found);

} // namespace plix::tool
