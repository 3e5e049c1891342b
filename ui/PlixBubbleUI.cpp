#include "ui/PlixBubbleUI.h"

#include "layout/PlixStyleValues.h"
#include "model/PlixDataBubble.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixCardOutline.h"
#include "ui/PlixChildItems.h"
#include "ui/PlixFocusStop.h"
#include "ui/PlixSender.h"
#include "ui/PlixSeparatorUI.h"

#include <kestro_control/AccessibilityUpdates.h>

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr char kOthersBackground[] = "#F1F3F7";
constexpr char kOwnBackground[] = "#C0EAFC";
constexpr char kZoneSeparatorColor[] = "#CCCCCC";

} // namespace

PlixBubbleUI::PlixBubbleUI(QGraphicsItem* parent, QGraphicsLayoutItem* parentLayout)
    : PlixWidgetUI(parent, parentLayout)
    , background_(plix::ToColor(kOthersBackground), Qt::SolidPattern)
{
    setOrientation(Qt::Vertical);
}

bool PlixBubbleUI::Init()
{
    const auto data = FindData<PlixDataBubble>();
    if (!data)
        return false;
    setWidth(data->GetWidth());
    if (data->IsRightToLeft())
        YogaLayoutItem::setLayoutDirection(Qt::RightToLeft);
    LetQtClip(true);
    return true;
}

void PlixBubbleUI::SetFrom(int from)
{
    from_ = from;
    if (from_ == plix::kFromMyself)
        setBackgroundColor(kOwnBackground);
}

void PlixBubbleUI::addChild(YogaLayoutItem* child)
{
    plix::StretchInColumn(child);
    YogaLayoutItem::addChild(child);
}

int PlixBubbleUI::setHighlightText(const QStringList& words)
{
    return plix::HighlightChildren(*this, words);
}

QString PlixBubbleUI::PlainText() const
{
    return plix::ChildTexts(*this).join(QLatin1Char('\n'));
}

void PlixBubbleUI::arrangeZones()
{
    const auto data = FindData<PlixDataBubble>();
    if (!data)
        return;
    const PlixDataContainer* const header = data->GetHeader().get();
    const PlixDataContainer* const body = data->GetBody().get();
    int index = 0;
    for (const PlixDataBubble::Zone& zone : data->GetZones()) {
        const int items = zone.container ? ShownItems(*zone.container, index) : 0;
        if (items == 0)
            continue;
        if (zone.container.get() == body)
            bodyItem_ = childAt(index)->watch();
        FillBackground(index, zone.style);
        if (zone.container.get() != header && zone.style.separator && index > 0) {
            InsertSeparator(index, zone.style);
            ++index;
        }
        index += items;
    }
}

int PlixBubbleUI::ShownItems(const PlixDataContainer& zone, int index) const
{
    int items = 0;
    for (const auto& data : zone.GetChildren()) {
        auto* const ui = dynamic_cast<PlixBaseUI*>(childAt(index + items));
        if (!ui)
            break;
        const qlonglong key = ui->GetGraphicsItem()->data(plix::kDataItemRole).toLongLong();
        if (key == PlixItemRegistry::KeyOf(data.get()))
            ++items;
    }
    return items;
}

void PlixBubbleUI::FillBackground(int index, const PlixZoneStyle& style)
{
    auto* const box = dynamic_cast<PlixBoxUI*>(childAt(index));
    if (box && !box->HasBackground() && !style.backgroundColor.empty())
        box->SetBackground(plix::ToColor(style.backgroundColor));
}

void PlixBubbleUI::InsertSeparator(int index, const PlixZoneStyle& style)
{
    auto* const separator = new PlixSeparatorUI(this);
    separator->setColor(style.separatorColor.empty() ? kZoneSeparatorColor : style.separatorColor);
    insertChild(separator, index);
    separator->setWidthPercent(100);
    separator->setHeight(1);
}

void PlixBubbleUI::setBackgroundColor(const std::string& color)
{
    background_.setColor(plix::ToColor(color));
    update();
}

void PlixBubbleUI::resumeBackgroundColor()
{
    setBackgroundColor(from_ == plix::kFromMyself ? kOwnBackground : kOthersBackground);
}

int PlixBubbleUI::modifyHeight(int height)
{
    const double current = size().height();
    if (current >= height)
        return 0;
    YogaLayoutItem* const body = bodyItem_.get();
    if (!body)
        return -1;
    body->setHeight(height - current + std::trunc(body->layoutHeight()));
    return 0;
}

QPainterPath PlixBubbleUI::shape() const
{
    return PlixCardOutline(boundingRect()).Path();
}

bool PlixBubbleUI::LeavesClippingToItems(const QGraphicsItem& item)
{
    // No other item of a card has this flag.
    return item.flags().testFlag(ItemContainsChildrenInShape);
}

void PlixBubbleUI::LetQtClip(bool on)
{
    GraphicsItemFlags changed = flags();
    changed.setFlag(ItemClipsToShape, on);
    changed.setFlag(ItemClipsChildrenToShape, on);
    // Nothing outside of the outline can be clicked, whoever clips.
    changed.setFlag(ItemContainsChildrenInShape, !on);
    setFlags(changed);
}

bool PlixBubbleUI::HasOnlyItemsOfTheCard() const
{
    const QList<QGraphicsItem*> children = childItems();
    return std::all_of(children.begin(), children.end(), [](QGraphicsItem* child) {
        return dynamic_cast<PlixBaseUI*>(child) || dynamic_cast<PlixFocusStop*>(child);
    });
}

QVariant PlixBubbleUI::itemChange(GraphicsItemChange change, const QVariant& value)
{
    if (change == ItemSceneHasChanged)
        LetQtClip(!scene() || !HasOnlyItemsOfTheCard());
    else if (change == ItemChildAddedChange && scene())
        LetQtClip(true); // the child may not be constructed yet
    return PlixWidgetUI::itemChange(change, value);
}

void PlixBubbleUI::resizeEvent(QGraphicsSceneResizeEvent* event)
{
    PlixWidgetUI::resizeEvent(event);
    kestro::TellAccessibilityClients(*this, QAccessible::LocationChanged);
}

void PlixBubbleUI::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    if (LeavesClippingToItems(*this)) {
        PlixCardOutline(boundingRect()).Fill(*painter, boundingRect(), background_.color());
        return;
    }
    painter->save();
    painter->setBrush(background_);
    painter->setPen(Qt::NoPen);
    const QRectF rect = boundingRect();
    painter->drawRects(&rect, 1);
    painter->restore();
}
