#include "ui/PlixBaseUI.h"

#include "api/PlixDataMgr.h"
#include "layout/PlixStyleValues.h"
#include "layout/YogaLayoutItem.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataItemCommon.h"
#include "ui/PlixLeadingMargin.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QVariant>

namespace {

// One offset: where its text is, how the node takes it, and which of the
// parent's lengths a percentage is a share of.
struct Offset {
    std::string (PlixDataItemCommon::*text)() const;
    void (YogaLayoutItem::*setPixels)(double);
    void (YogaLayoutItem::*setPercent)(double);
    double (QSizeF::*parentLength)() const;

    PlixLength Length(const PlixDataItemCommon& data) const
    {
        PlixLength length;
        plix::ParseLength((data.*text)(), length);
        return length;
    }
};

constexpr Offset kOffsets[] = {
    {&PlixDataItemCommon::GetOffsetTop, &YogaLayoutItem::setPositionTop,
     &YogaLayoutItem::setPositionTopPercent, &QSizeF::height},
    {&PlixDataItemCommon::GetOffsetBottom, &YogaLayoutItem::setPositionBottom,
     &YogaLayoutItem::setPositionBottomPercent, &QSizeF::height},
    {&PlixDataItemCommon::GetOffsetStart, &YogaLayoutItem::setPositionStart,
     &YogaLayoutItem::setPositionStartPercent, &QSizeF::width},
    {&PlixDataItemCommon::GetOffsetEnd, &YogaLayoutItem::setPositionEnd,
     &YogaLayoutItem::setPositionEndPercent, &QSizeF::width},
};

bool IsPercentage(const PlixLength& length)
{
    return length.px <= 0 && length.percent > 0;
}

// A click may end this far outside of its item: items need not lie on whole
// pixels of the view, where the mouse is.
constexpr double kClickMargin = 1;

} // namespace

PlixBaseUI::~PlixBaseUI() = default;

QGraphicsLayoutItem* PlixBaseUI::GetChildParentLayout()
{
    return nullptr;
}

bool PlixBaseUI::Init()
{
    return true;
}

void PlixBaseUI::SetClickFunc(const ClickFunc&) { }

void PlixBaseUI::SetDownloadFunc(const DownloadFunc&) { }

void PlixBaseUI::SetFrom(int) { }

void PlixBaseUI::SetOwner(PlixDataController* owner)
{
    owner_ = owner;
    const auto* manager = dynamic_cast<const PlixDataMgr*>(owner);
    manager_ = manager ? manager->Watch() : PlixLink<PlixDataMgr>();
}

PlixDataMgr* PlixBaseUI::Manager() const
{
    return manager_.get();
}

bool PlixBaseUI::HasAction()
{
    if (!dynamic_cast<QGraphicsItem*>(this))
        return false;
    if (actionSuppressed_ || !clickable_ || !clickFunc_)
        return false;
    const std::shared_ptr<PlixDataItem> data = FindDataItem();
    return data && data->GetAction();
}

std::shared_ptr<PlixDataItem> PlixBaseUI::FindDataItem()
{
    const qlonglong key = GetGraphicsItem()->data(plix::kDataItemRole).toLongLong();
    return PlixItemRegistry::GetInstance().Find(key);
}

void PlixBaseUI::ApplyPlacement(bool parentIsVertical)
{
    const auto data = FindData<PlixDataItemCommon>();
    if (!data)
        return;
    YogaLayoutItem& node = *GetYogaItem();
    if (!data->GetMargin().empty() && data->GetIndex() > 0) {
        const int margin = plix::ToLengthPixels(data->GetMargin());
        plix::SetLeadingMargin(node, margin, parentIsVertical, plix::IsInRightToLeftBubble(*data));
        node.setHasMargin(true);
    }
    if (data->GetPosition() == "absolute")
        node.setAbsolute(true);
    for (const Offset& offset : kOffsets) {
        const PlixLength length = offset.Length(*data);
        if (length.px > 0)
            (node.*offset.setPixels)(static_cast<double>(length.px));
    }
}

void PlixBaseUI::ApplyPercentOffsets()
{
    const auto data = FindData<PlixDataItemCommon>();
    if (!data)
        return;
    for (const Offset& offset : kOffsets) {
        const PlixLength length = offset.Length(*data);
        if (IsPercentage(length))
            (GetYogaItem()->*offset.setPercent)(static_cast<double>(length.percent));
    }
}

void PlixBaseUI::ResolvePercentOffsets(const QSizeF& parentSize)
{
    const auto data = FindData<PlixDataItemCommon>();
    if (!data)
        return;
    for (const Offset& offset : kOffsets) {
        const PlixLength length = offset.Length(*data);
        const double share = static_cast<double>(length.percent) / 100;
        if (IsPercentage(length))
            (GetYogaItem()->*offset.setPixels)(share * (parentSize.*offset.parentLength)());
    }
}

bool PlixBaseUI::TakesPresses() const
{
    return hasOwnAction_;
}

void PlixBaseUI::HandlePress(QGraphicsSceneMouseEvent& event) const
{
    event.setAccepted(TakesPresses() && event.button() == Qt::LeftButton);
}

void PlixBaseUI::HandleRelease(const QGraphicsSceneMouseEvent& event)
{
    if (hasOwnAction_ && IsClick(event))
        DeliverClick();
}

bool PlixBaseUI::IsClick(const QGraphicsSceneMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return false;
    const QGraphicsItem& item = *GetGraphicsItem();
    const QRectF rect =
        item.boundingRect().adjusted(-kClickMargin, -kClickMargin, kClickMargin, kClickMargin);
    const auto isOnItem = [&](const QPointF& scenePos) {
        return rect.contains(item.mapFromScene(scenePos));
    };
    const bool left =
        isOnItem(event.buttonDownScenePos(Qt::LeftButton)) && !isOnItem(event.scenePos());
    return !left;
}

void PlixBaseUI::ReleaseMouse()
{
    const QGraphicsScene* scene = GetGraphicsItem()->scene();
    QGraphicsItem* const grabber = scene ? scene->mouseGrabberItem() : nullptr;
    if (grabber)
        grabber->ungrabMouse();
}

void PlixBaseUI::DeliverClick()
{
    const std::shared_ptr<PlixDataItem> data = FindDataItem();
    const std::shared_ptr<ST_ACTION> record = data ? data->GetAction() : nullptr;
    if (!record || !clickFunc_)
        return;
    const ClickFunc click = clickFunc_;
    ST_ACTION action = *record;
    ReleaseMouse();
    click(action);
}
