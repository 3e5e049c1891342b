#include "ui/PlixOffsets.h"

#include "layout/YogaLayoutItem.h"
#include "model/PlixDataItemCommon.h"

#include <QSizeF>

namespace {

// One offset: where its text is, how the node takes it, and which of the
// parent's lengths a percentage is a share of.
struct Offset {
    std::string (PlixDataItemCommon::*text)() const;
    void (YogaLayoutItem::*setPixels)(double);
    void (YogaLayoutItem::*setPercent)(double);
    double (QSizeF::*parentLength)() const;
};

constexpr std::array kOffsets = std::to_array<Offset>({
    {&PlixDataItemCommon::GetOffsetTop, &YogaLayoutItem::setPositionTop,
     &YogaLayoutItem::setPositionTopPercent, &QSizeF::height},
    {&PlixDataItemCommon::GetOffsetBottom, &YogaLayoutItem::setPositionBottom,
     &YogaLayoutItem::setPositionBottomPercent, &QSizeF::height},
    {&PlixDataItemCommon::GetOffsetStart, &YogaLayoutItem::setPositionStart,
     &YogaLayoutItem::setPositionStartPercent, &QSizeF::width},
    {&PlixDataItemCommon::GetOffsetEnd, &YogaLayoutItem::setPositionEnd,
     &YogaLayoutItem::setPositionEndPercent, &QSizeF::width},
});

bool IsPercentage(const PlixLength& length)
{
    return length.px <= 0 && length.percent > 0;
}

} // namespace

PlixOffsets::PlixOffsets(const PlixDataItemCommon& data)
{
    static_assert(kOffsets.size() == kCount);
    for (std::size_t i = 0; i < kCount; ++i)
        plix::ParseLength((data.*kOffsets[i].text)(), lengths_[i]);
}

void PlixOffsets::ApplyPixels(YogaLayoutItem& node) const
{
    for (std::size_t i = 0; i < kCount; ++i) {
        if (lengths_[i].px > 0)
            (node.*kOffsets[i].setPixels)(static_cast<double>(lengths_[i].px));
    }
}

void PlixOffsets::ApplyPercentages(YogaLayoutItem& node) const
{
    for (std::size_t i = 0; i < kCount; ++i) {
        if (IsPercentage(lengths_[i]))
            (node.*kOffsets[i].setPercent)(static_cast<double>(lengths_[i].percent));
    }
}

void PlixOffsets::ResolvePercentages(YogaLayoutItem& node, const QSizeF& parentSize) const
{
    for (std::size_t i = 0; i < kCount; ++i) {
        const double share = static_cast<double>(lengths_[i].percent) / 100;
        if (IsPercentage(lengths_[i]))
            (node.*kOffsets[i].setPixels)(share * (parentSize.*kOffsets[i].parentLength)());
    }
}
