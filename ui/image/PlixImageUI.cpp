#include "ui/image/PlixImageUI.h"

#include "api/PlixCurrentLanguage.h"
#include "layout/PlixKeywordTable.h"
#include "layout/PlixStyleValues.h"
#include "model/PlixActionKind.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataImage.h"
#include "model/PlixLanguageText.h"

#include <QCursor>

namespace {

constexpr double kNoFixedWidth = -1;

// How a word aligns the item, and where it puts a picture that fits inside.
struct Alignment {
    int flag;
    double place;
};

constexpr std::array kAligns =
    std::to_array<PlixKeyword<Alignment>>({{"start", {Qt::AlignLeft, 0}},
                                           {"center", {Qt::AlignHCenter, 0.5}},
                                           {"end", {Qt::AlignRight, 1}}});

constexpr std::array kGravities =
    std::to_array<PlixKeyword<Alignment>>({{"top", {Qt::AlignTop, 0}},
                                           {"center", {Qt::AlignVCenter, 0.5}},
                                           {"bottom", {Qt::AlignBottom, 1}}});

} // namespace

PlixImageUI::PlixImageUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixPictureUI(parent, parentLayout)
{
}

bool PlixImageUI::Init()
{
    const auto data = FindData<PlixDataImage>();
    if (!data)
        return false;
    InitAction(*data);
    Download(plix::ChooseText(data->GetUrls(), plix::GetCurrentLanguage(), data->GetUrl()));
    InitSize(*data);
    if (data->GetAspectMode() == "cover")
        SetAspectMode(AspectMode::Cover);
    InitAlignment(*data);
    SetBackground(data->GetBackgroundColor());
    InitCommon(*data);
    return true;
}

void PlixImageUI::InitAction(const PlixDataImage& data)
{
    hasOwnAction_ = !data.IsAppOnlyAction() && plix::HasKnownAction(data);
    clickable_ = hasOwnAction_;
    if (clickable_)
        setCursor(Qt::PointingHandCursor);
    else
        setAcceptedMouseButtons(Qt::NoButton);
}

void PlixImageUI::InitSize(PlixDataImage& data)
{
    const double width = data.GetSizePixels();
    const double ratio = plix::ToAspectRatio(data.GetAspectRatio());
    if (width > kNoFixedWidth) {
        // The height is set, too: an image that grows in a row must not make the
        // row higher.
        setWidth(width);
        setHeight(width / ratio);
        SetFixedWidth(width);
        return;
    }
    setAspectRatio(ratio);
    // Columns stretch what has no width; in a row it would have none unless it
    // grows.
    const bool growsInRow = data.GetGrow() > 0 && !data.IsAbsolute();
    if (plix::IsInRow(data) && !growsInRow) {
        setWidthPercent(100);
        setShrinkFactor(1);
    }
}

void PlixImageUI::InitAlignment(const PlixDataImage& data)
{
    const bool parentIsHorizontal = plix::IsInRow(data);
    Placement placement;
    const auto align = plix::FindKeyword(kAligns, data.GetAlign());
    setAlignment(align ? align->flag : Qt::AlignLeft, parentIsHorizontal);
    if (align)
        placement.x = plix::IsInRightToLeftBubble(data) ? 1 - align->place : align->place;
    if (const auto gravity = plix::FindKeyword(kGravities, data.GetGravity())) {
        setAlignment(gravity->flag, parentIsHorizontal);
        placement.y = gravity->place;
    }
    SetPlacement(placement);
}

void PlixImageUI::SetClickFunc(const ClickFunc& func)
{
    clickFunc_ = func;
}
