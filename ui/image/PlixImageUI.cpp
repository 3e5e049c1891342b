#include "ui/image/PlixImageUI.h"

#include "api/PlixCurrentLanguage.h"
#include "layout/PlixKeywordTable.h"
#include "layout/PlixLengthWords.h"
#include "layout/PlixStyleValues.h"
#include "model/PlixActionKind.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataImage.h"
#include "model/PlixLanguageText.h"
#include "model/format/PlixWords.h"
#include "ui/PlixAlignmentWords.h"

#include <QCursor>

namespace {

constexpr double kNoFixedWidth = -1;

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
    SetAspectMode(
        plix::FindKeyword(plix::kAspectModes, data->GetAspectMode()).value_or(PlixAspectMode::Fit));
    InitAlignment(*data);
    SetBackground(data->GetBackgroundColor());
    InitCommon(*data);
    return true;
}

void PlixImageUI::InitAction(const PlixDataImage& data)
{
    hasOwnAction_ = !data.IsAppOnlyAction() && plix::HasKnownAction(data);
    clickable_ = hasOwnAction_;
    InitFocus();
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
        // Width and height rather than one of them and the ratio: an image that
        // grows in a row must not make the row higher.
        setWidth(width);
        setHeight(width / ratio);
        SetFixedWidth(width);
        return;
    }
    setAspectRatio(ratio);
    // A column stretches it. In a row, it would have no width unless it grows.
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
    const auto align = plix::FindAlign(data.GetAlign());
    setAlignment(align ? align->flag : Qt::AlignLeft, parentIsHorizontal);
    if (align) {
        const bool rightToLeft = plix::IsInRightToLeftBubble(data);
        placement.x = rightToLeft ? 1 - align->shareBefore : align->shareBefore;
    }
    if (const auto gravity = plix::FindGravity(data.GetGravity())) {
        setAlignment(gravity->flag, parentIsHorizontal);
        placement.y = gravity->shareBefore;
    }
    SetPlacement(placement);
}

void PlixImageUI::SetClickFunc(const ClickFunc& func)
{
    clickFunc_ = func;
}
