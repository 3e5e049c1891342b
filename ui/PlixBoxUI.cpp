#include "ui/PlixBoxUI.h"

#include "layout/PlixStyleNumber.h"
#include "layout/PlixStyleValues.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataBox.h"
#include "ui/PlixCardClip.h"
#include "ui/PlixChildItems.h"
#include "ui/PlixDevicePixels.h"
#include "ui/PlixLeadingMargin.h"
#include "ui/PlixOffsets.h"
#include "ui/PlixPaths.h"

#include <QCursor>
#include <QGraphicsSceneMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionGraphicsItem>

#include <algorithm>

namespace {

// One padding, and how the node takes it as a percentage.
struct PercentPadding {
    PlixPadding (PlixDataBox::*padding)() const;
    void (YogaLayoutItem::*setPercent)(double);
};

constexpr PercentPadding kPercentPaddings[] = {
    {&PlixDataBox::GetPaddingAll, &YogaLayoutItem::setPaddingPercent},
    {&PlixDataBox::GetPaddingTop, &YogaLayoutItem::setPaddingTopPercent},
    {&PlixDataBox::GetPaddingBottom, &YogaLayoutItem::setPaddingBottomPercent},
    {&PlixDataBox::GetPaddingStart, &YogaLayoutItem::setPaddingLeftPercent},
    {&PlixDataBox::GetPaddingEnd, &YogaLayoutItem::setPaddingRightPercent},
};

} // namespace

PlixBoxUI::PlixBoxUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixWidgetUI(parent, parentLayout)
{
    setOrientation(Qt::Vertical);
}

bool PlixBoxUI::Init()
{
    const auto data = FindData<PlixDataBox>();
    if (!data)
        return false;
    InitMouse(*data);
    horizontal_ = data->IsHorizontal() || data->IsBaseline();
    baseline_ = data->IsBaseline();
    rightToLeft_ = plix::IsInRightToLeftBubble(*data);
    if (!data->GetBackgroundColor().empty())
        SetBackground(plix::ToColor(data->GetBackgroundColor()));
    cornerRadius_ = plix::ToCornerRadius(data->GetCornerRadius());
    grow_ = data->GetGrow();
    setGrowFactor(grow_);
    InitDirection(*data);
    InitSize(*data);
    InitBorder(*data);
    InitPaddings(*data);
    spacing_ = plix::ToSpacingPixels(data->GetSpacing());
    ApplyPlacement(*data, plix::IsInVerticalBox(*data)).ApplyPercentages(*this);
    InitPercentSize(*data);
    setFlags(flags() | ItemClipsChildrenToShape | ItemClipsToShape);
    return true;
}

void PlixBoxUI::InitMouse(const PlixDataBox& data)
{
    if (data.IsAppOnlyAction()) {
        clickOwnedAbove_ = true;
        actionSuppressed_ = true;
    }
    if (clickOwnedAbove_ || !data.GetAction()) {
        setAcceptedMouseButtons(Qt::NoButton);
        return;
    }
    hasOwnAction_ = true;
    clickable_ = true;
    setCursor(Qt::PointingHandCursor);
    InitFocus();
}

void PlixBoxUI::InitDirection(const PlixDataBox& data)
{
    if (data.IsBaseline()) {
        setOrientation(Qt::Horizontal);
        setAlignment(Qt::AlignBaseline, true);
    } else if (data.IsHorizontal()) {
        setOrientation(Qt::Horizontal);
    } else {
        setHeightAuto();
    }
}

void PlixBoxUI::InitSize(const PlixDataBox& data)
{
    const double width = static_cast<double>(data.GetWidthLength().px);
    const double height = static_cast<double>(data.GetHeightLength().px);
    if (width >= 0)
        setWidth(width);
    if (height >= 0)
        setHeight(height);

    const bool hasMainSize = horizontal_ ? width > 0 : height > 0;
    if (hasMainSize)
        setGrowFactor(0);
    // With a zero basis, boxes that grow share the free space of a row without
    // regard to their content.
    if (horizontal_ && grow_ > 0 && width <= 0 && !data.IsAbsolute())
        setWidth(0);
}

void PlixBoxUI::InitBorder(const PlixDataBox& data)
{
    const int width = plix::ToBorderWidth(data.GetBorderWidth());
    if (width < 1 || data.GetBorderColor().empty())
        return;
    // The pen follows the edge, and the clip cuts its outer half off.
    border_.emplace(plix::ToColor(data.GetBorderColor()), plix::ToStyleNumber(width + 1.0));
    borderWidth_ = width;
}

void PlixBoxUI::InitPaddings(const PlixDataBox& data)
{
    const int all = data.GetPaddingAll().px;
    if (all >= 0)
        setPadding(all);
    // Paddings are inside of the border.
    const auto edge = [&](const PlixPadding& padding) -> double {
        if (padding.px >= 0)
            return static_cast<double>(padding.px) + borderWidth_;
        return all < 0 ? borderWidth_ : -1;
    };
    setPaddings(edge(data.GetPaddingStart()), edge(data.GetPaddingTop()),
                edge(data.GetPaddingEnd()), edge(data.GetPaddingBottom()));
    for (const PercentPadding& row : kPercentPaddings) {
        const PlixPadding padding = (data.*row.padding)();
        if (padding.px == 0 && padding.percent > 0)
            (this->*row.setPercent)(padding.percent);
    }
}

void PlixBoxUI::InitPercentSize(const PlixDataBox& data)
{
    if (data.GetWidthLength().percent > 0) {
        setWidthPercent(static_cast<double>(data.GetWidthLength().percent));
        setWidthIsPercent(true);
    }
    if (data.GetHeightLength().percent > 0)
        setHeightPercent(static_cast<double>(data.GetHeightLength().percent));
}

void PlixBoxUI::SetClickFunc(const ClickFunc& func)
{
    clickFunc_ = func;
}

void PlixBoxUI::addChild(YogaLayoutItem* child)
{
    if (!child)
        return;
    if (!horizontal_)
        plix::StretchInColumn(child);
    if (childCount() > 0 && spacing_ > 0)
        ApplySpacing(*child);
    if (baseline_)
        child->setAlignment(Qt::AlignBaseline, horizontal_);
    child->insetInto(*this);
    if (hasOwnAction_)
        child->setClickable(true);
    if (cornerRadius_ > 0)
        child->inheritCornerRadius(cornerRadius_);
    YogaLayoutItem::addChild(child);
}

void PlixBoxUI::ApplySpacing(YogaLayoutItem& child)
{
    if (!child.hasMargin())
        plix::SetLeadingMargin(child, spacing_, !horizontal_, rightToLeft_);
}

int PlixBoxUI::setHighlightText(const QStringList& words)
{
    return plix::HighlightChildren(*this, words);
}

QString PlixBoxUI::PlainText() const
{
    const QLatin1Char lineEnd('\n');
    const QLatin1Char space(' ');
    const QStringList texts = plix::ChildTexts(*this);
    return horizontal_ ? texts.join(space).replace(lineEnd, space) : texts.join(lineEnd);
}

void PlixBoxUI::setClickable(bool on)
{
    if (!on)
        return;
    setCursor(Qt::PointingHandCursor);
    for (int i = 0; i < childCount(); ++i) {
        if (YogaLayoutItem* child = childAt(i))
            child->setClickable(true);
    }
}

void PlixBoxUI::inheritCornerRadius(int radius)
{
    cornerRadius_ = std::max(cornerRadius_, radius);
}

void PlixBoxUI::SetBackground(const QColor& color)
{
    background_.emplace(color, Qt::SolidPattern);
    update();
}

void PlixBoxUI::mouseReleaseEvent(QGraphicsSceneMouseEvent* event)
{
    HandleReleaseInside(event);
}

void PlixBoxUI::HandleReleaseInside(QGraphicsSceneMouseEvent* event)
{
    if (clickOwnedAbove_)
        return;
    if (hasOwnAction_)
        HandleRelease(*event);
    else if (auto* box = dynamic_cast<PlixBoxUI*>(YogaLayoutItem::parentItem()))
        box->HandleReleaseInside(event);
}

void PlixBoxUI::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    if (!background_ && !border_)
        return;
    const std::optional<PlixCardCut> cut = plix::CutByCard(*this, rect());
    const bool isOnWholePixels = plix::IsOnWholePixels(*painter, rect());
    if (cut && cut->outline && isOnWholePixels && cornerRadius_ < 1 && !border_) {
        cut->outline->Fill(*painter, rect(), background_->color());
        return;
    }
    const PlixCardClip clip(*painter, cut);
    if (isOnWholePixels && (cornerRadius_ >= 1 || !border_))
        PaintOnWholePixels(*painter);
    else
        PaintClipped(*painter, option->exposedRect);
}

void PlixBoxUI::PaintClipped(QPainter& painter, const QRectF& exposed) const
{
    painter.save();
    // With the item's own clip alone, a partial paint may show one more row of
    // pixels than a paint of the whole.
    plix::ClipToRectangle(painter, rect());
    painter.setRenderHint(QPainter::Antialiasing);
    if (background_)
        PaintBackground(painter, exposed);
    if (border_)
        PaintBorder(painter);
    painter.restore();
}

// For a box that fills whole pixels, and has no pen that would have to be cut in half:
// it paints nothing outside of itself.
void PlixBoxUI::PaintOnWholePixels(QPainter& painter) const
{
    if (cornerRadius_ < 1) {
        plix::FillWholePixels(painter, rect(), background_->color());
        return;
    }
    const bool wasSmooth = painter.testRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::Antialiasing);
    if (background_)
        PaintBackground(painter, rect());
    if (border_)
        PaintBorder(painter);
    painter.setRenderHint(QPainter::Antialiasing, wasSmooth);
}

void PlixBoxUI::PaintBackground(QPainter& painter, const QRectF& exposed) const
{
    const QPainterPath path = cornerRadius_ >= 1 ? plix::RoundedPath(rect(), cornerRadius_)
                                                 : plix::RectanglePath(exposed);
    painter.fillPath(path, *background_);
    // With a border, the path is filled twice: a translucent background is denser.
    if (border_)
        painter.fillPath(path, *background_);
}

// Paints the whole border, even if only a part is exposed: the edges of that part
// have no border.
void PlixBoxUI::PaintBorder(QPainter& painter) const
{
    // The item's clip cuts the outer half of the pen off, except at round corners.
    if (cornerRadius_ >= 1)
        painter.fillPath(RoundedBorderPath(), border_->brush());
    else
        painter.strokePath(plix::RectanglePath(rect()), *border_);
}

// The inner half of the pen. Not a clip to the outline, because Qt loses the soft
// edges of a clip where the painted part sees a rectangle of it.
QPainterPath PlixBoxUI::RoundedBorderPath() const
{
    const double width = border_->widthF() / 2;
    const QRectF inside = rect().adjusted(width, width, -width, -width);
    QPainterPath path = plix::RoundedPath(rect(), cornerRadius_);
    if (inside.isValid())
        path.addPath(plix::RoundedPath(inside, std::max(cornerRadius_ - width, 0.0)));
    return path;
}
