#pragma once

#include <string>

class PlixDataItem;

// What an action's "type" word asks for. Only actions of a known kind make a
// text or an image clickable.
enum PlixActionKind : int {
    PlixActionNone = 0,
    PlixActionMessage = 1,
    PlixActionUri = 2,
    PlixActionPostback = 3,
};

namespace plix {

PlixActionKind ToActionKind(const std::string& word);

// Whether the item has an action, and one of a known kind.
bool HasKnownAction(const PlixDataItem& data);

} // namespace plix
