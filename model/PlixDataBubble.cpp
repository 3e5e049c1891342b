#include "model/PlixDataBubble.h"

#include "layout/PlixKeywordTable.h"

#include <optional>

namespace {

constexpr float kDefaultWidth = 300;
constexpr float kDefaultSpacing = 20;

using Pixels = PlixKeyword<float>;

constexpr std::array kWidths = std::to_array<Pixels>({{"giga", 500},
                                                      {"autogiga", 385},
                                                      {"sn_autogiga", 343},
                                                      {"mega", 300},
                                                      {"kilo", 260},
                                                      {"micro", 160},
                                                      {"nano", 120}});

constexpr std::array kSizeSpacings =
    std::to_array<Pixels>({{"giga", 20}, {"mega", 20}, {"kilo", 13}, {"micro", 10}, {"nano", 10}});

// The space between the body and a footer that is not empty.
constexpr std::array kFooterSpacings =
    std::to_array<Pixels>({{"giga", 10}, {"mega", 10}, {"kilo", 3}, {"micro", 0}, {"nano", 0}});

template <typename Zone> std::shared_ptr<Zone> MakeZone(const std::shared_ptr<PlixDataItem>& owner)
{
    auto zone = std::make_shared<Zone>();
    zone->SetOwner(owner);
    return zone;
}

} // namespace

PlixDataBubble::PlixDataBubble()
    : PlixDataItem(PlixKindBubble)
    , width_(kDefaultWidth)
{
}

void PlixDataBubble::InitZones()
{
    const std::shared_ptr<PlixDataItem> self = shared_from_this();
    header_ = MakeZone<PlixDataHeader>(self);
    hero_ = MakeZone<PlixDataHero>(self);
    body_ = MakeZone<PlixDataBody>(self);
    footer_ = MakeZone<PlixDataFooter>(self);
}

std::array<PlixDataBubble::Zone, 4> PlixDataBubble::GetZones() const
{
    return {{{header_, headerStyle_},
             {hero_, heroStyle_},
             {body_, bodyStyle_},
             {footer_, footerStyle_}}};
}

float PlixDataBubble::GetWidth()
{
    if (width_ == kDefaultWidth)
        width_ = plix::FindKeyword(kWidths, GetSize()).value_or(kDefaultWidth);
    return width_;
}

float PlixDataBubble::GetSizeSpacing() const
{
    return plix::FindKeyword(kSizeSpacings, GetSize()).value_or(kDefaultSpacing);
}

float PlixDataBubble::GetFooterSpacing() const
{
    const bool hasFooter = footer_ && footer_->GetChildCount() > 0;
    const auto spacing = hasFooter ? plix::FindKeyword(kFooterSpacings, GetSize()) : std::nullopt;
    return spacing.value_or(GetSizeSpacing());
}
