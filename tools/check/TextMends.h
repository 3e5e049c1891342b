#pragma once

#include "check/ShownItem.h"
#include "check/SplitWord.h"

#include <QString>

namespace plix::tool {

struct ContrastResult;

// What is wrong with a text, and what to change in the card.

// A number of whole pixels.
QString pixels(double value);

// How much room a text or a label needs, and how much it has.
QString roomText(double needed, double available);

// For a text that is cut: what is missing.
QString cutMessage(const ShownItem& item);

// Whether a wrapped text would have more lines, instead of words that are split.
bool canWrap(const ShownItem& item);

// For a text of one word that needs more room.
QString widthMend(const ShownItem& item, double needed);

QString splitMessage(const ShownItem& item, const SplitWord& word);
QString splitMend(const ShownItem& item, const SplitWord& word);

QString contrastMessage(const ShownItem& item, const ContrastResult& result);
QString contrastMend(const ContrastResult& result);

} // namespace plix::tool
