#include "model/PlixDataBubble.h"

#include "layout/PlixKeywordTable.h"
#include "model/format/PlixWords.h"

namespace {

constexpr float kDefaultWidth = PlixBubbleSize().width;

} // namespace

PlixDataBubble::PlixDataBubble()
    : PlixDataItem(PlixKindBubble)
    , width_(kDefaultWidth)
{
}

void PlixDataBubble::InitZones()
{
    const std::shared_ptr<PlixDataItem> self = shared_from_this();
    header_ = std::make_shared<PlixDataHeader>();
    hero_ = std::make_shared<PlixDataHero>();
    body_ = std::make_shared<PlixDataBody>();
    footer_ = std::make_shared<PlixDataFooter>();
    // Not before all are there: a zone that owns the bubble keeps it alive.
    for (const Zone& zone : GetZones())
        zone.container->SetOwner(self);
}

std::array<PlixDataBubble::Zone, 4> PlixDataBubble::GetZones() const
{
    return {{{header_, headerStyle_},
             {hero_, heroStyle_},
             {body_, bodyStyle_},
             {footer_, footerStyle_}}};
}

bool PlixDataBubble::IsRightToLeft() const
{
    return plix::FindKeyword(plix::kDirections, fields_.View(PlixField::Direction))
        == Qt::RightToLeft;
}

float PlixDataBubble::GetWidth()
{
    if (width_ == kDefaultWidth)
        width_ = FindSize().width;
    return width_;
}

float PlixDataBubble::GetSizeSpacing() const
{
    return FindSize().spacing;
}

float PlixDataBubble::GetFooterSpacing() const
{
    const bool hasFooter = footer_ && footer_->GetChildCount() > 0;
    const PlixBubbleSize size = FindSize();
    return hasFooter ? size.footerSpacing : size.spacing;
}

PlixBubbleSize PlixDataBubble::FindSize() const
{
    return plix::FindKeyword(plix::kBubbleSizes, fields_.View(PlixField::Size))
        .value_or(PlixBubbleSize());
}
