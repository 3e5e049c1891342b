#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"

#include <QByteArray>

#include <optional>

namespace plix::tool {

// Reads the text of a card, and notes what is wrong with its JSON. Nothing if it is not
// JSON, or not a card.
std::optional<JsonNode> readCard(const QByteArray& json, Findings& findings);

// The first finding in the text because of which it is no card; null if it is one.
const Finding* findRefusal(const Findings& findings);

} // namespace plix::tool
