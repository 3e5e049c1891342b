#pragma once

#include "layout/PlixStyleValues.h"

#include <array>

class PlixDataItemCommon;
class QSizeF;
class YogaLayoutItem;

// "offsetTop", "offsetBottom", "offsetStart" and "offsetEnd" of one item. Each is
// in pixels, a percentage of a length of the parent, or not given.
class PlixOffsets {
public:
    PlixOffsets() = default;
    explicit PlixOffsets(const PlixDataItemCommon& data);

    void ApplyPixels(YogaLayoutItem& node) const;
    // Leaves percentages to the layout.
    void ApplyPercentages(YogaLayoutItem& node) const;
    // Sets percentages as pixels, for a parent of this size.
    void ResolvePercentages(YogaLayoutItem& node, const QSizeF& parentSize) const;

private:
    static constexpr std::size_t kCount = 4;

    std::array<PlixLength, kCount> lengths_;
};
