#pragma once

#include <string>

class PlixDataItem;

// The kind of an action. Only actions of a known kind make a text or an image
// clickable.
enum PlixActionKind : int {
    PlixActionNone = 0,
    PlixActionMessage = 1,
    PlixActionUri = 2,
    PlixActionPostback = 3,
};

namespace plix {

// The kind that a "type" word names, PlixActionNone for any other word.
PlixActionKind ToActionKind(const std::string& word);

// Whether the item has an action of a known kind.
bool HasKnownAction(const PlixDataItem& data);

} // namespace plix
