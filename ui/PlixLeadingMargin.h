#pragma once

#include "layout/YogaLayoutItem.h"

namespace plix {

// Sets the margin between an item and the one before it: above it in a column, and
// in a row on its left, or on its right in a right-to-left card.
inline void SetLeadingMargin(YogaLayoutItem& item, double margin, bool inColumn, bool rightToLeft)
{
    if (inColumn)
        item.setMargins(0, margin, 0, 0);
    else if (rightToLeft)
        item.setMargins(0, 0, margin, 0);
    else
        item.setMargins(margin, 0, 0, 0);
}

} // namespace plix
