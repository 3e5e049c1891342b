#pragma once

#include "view/JsonCursor.h"

#include <QString>

#include <vector>

namespace plix::tool {

// A name or a word that the card format has at a place.
struct Completion {
    QString word;
    QString description;
    // What is written into the text, and how far before its end the cursor is then.
    QString text;
    int cursorFromEnd = 0;
};

// From the table of the card format. Without the names that the object already has.
std::vector<Completion> completionsAt(const JsonCursor& cursor);

} // namespace plix::tool
