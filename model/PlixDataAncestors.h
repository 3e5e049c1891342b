#pragma once

#include <memory>

class PlixDataBox;
class PlixDataItem;

namespace plix {

// What depends on the ancestors of an item.

// The box that holds `item`; null when its parent is not a box.
std::shared_ptr<PlixDataBox> ParentBox(const PlixDataItem& item);

bool IsInVerticalBox(const PlixDataItem& item);
// Whether the parent is a box that is not vertical. A zone is not a row.
bool IsInRow(const PlixDataItem& item);

// Whether the bubble that `item` belongs to reads from right to left.
bool IsInRightToLeftBubble(const PlixDataItem& item);

} // namespace plix
