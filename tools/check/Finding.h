#pragma once

#include "check/JsonNode.h"
#include "check/Rule.h"
#include "check/TextPlaces.h"

#include <QString>

#include <vector>

namespace plix::tool {

// One thing that is wrong with a card.
struct Finding {
    Rule rule = Rule::Syntax;
    TextRange range;
    QString path; // such as "body.contents[2].size"; empty for the whole card
    // What was found, and what is allowed or lost.
    QString message;
    // What to write instead; empty if there is no good guess.
    QString mend;
    TextPlace place; // of the range's begin
    TextPlace end; // after the range
};

using Findings = std::vector<Finding>;

} // namespace plix::tool
