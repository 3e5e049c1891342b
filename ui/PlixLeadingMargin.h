#pragma once

#include "layout/YogaLayoutItem.h"

namespace plix {

// The margin that separates an item from the one before it: above it in a
// column, and in a row on the side where reading comes from.
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
