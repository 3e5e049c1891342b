#pragma once

#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"

#include <memory>

namespace plix {

// Questions that an item asks of the tree above it, and the end of a tree.

// The box that holds `item`; null when its parent is not a box.
std::shared_ptr<PlixDataBox> ParentBox(const PlixDataItem& item);

bool IsInVerticalBox(const PlixDataItem& item);
// In a box of any other layout word: nothing above a zone is a row.
bool IsInRow(const PlixDataItem& item);

// Whether the bubble that `item` belongs to reads from right to left.
bool IsInRightToLeftBubble(const PlixDataItem& item);

// Takes a tree apart so that its items, which hold each other, are freed. No
// recursion: the host may have little stack left.
void DiscardDataTree(const std::shared_ptr<PlixDataBubble>& bubble);

} // namespace plix
