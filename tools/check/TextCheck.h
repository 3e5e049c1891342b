#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"

#include <QByteArray>

#include <optional>

namespace plix::tool {

// What the text of a card has wrong, without drawing it.
struct TextCheck {
    // Nothing if the text is not JSON, or not a card.
    std::optional<JsonNode> card;
    Findings findings;
    // Those for which the library logs a line, in the order of its lines.
    Findings logged;
};

TextCheck checkText(const QByteArray& json);

// Sorts the findings by their place in the text, and sets their lines and columns.
void placeFindings(const QByteArray& json, Findings& findings);

// Whether a part of the card is lost. What is left looks in another way than meant.
bool losesParts(const Findings& findings);

} // namespace plix::tool
