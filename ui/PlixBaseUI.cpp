#include "ui/PlixBaseUI.h"

#include "api/PlixDataMgr.h"
#include "layout/PlixStyleValues.h"
#include "layout/YogaLayoutItem.h"
#include "model/PlixDataAncestors.h"
#include "model/PlixDataItemCommon.h"
#include "ui/PlixActionName.h"
#include "ui/PlixActionWords.h"
#include "ui/PlixLeadingMargin.h"
#include "ui/PlixOffsets.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsSceneMouseEvent>
#include <QString>
#include <QVariant>

namespace {

// A click may end this far outside of its item: the mouse is on whole pixels of the
// view, and the edges of items need not be.
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

QString PlixBaseUI::PlainText() const
{
    return {};
}

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

PlixOffsets PlixBaseUI::ApplyPlacement(const PlixDataItemCommon& data, bool parentIsVertical)
{
    YogaLayoutItem& node = *GetYogaItem();
    if (!data.GetMargin().empty() && data.GetIndex() > 0) {
        const int margin = plix::ToLengthPixels(data.GetMargin());
        plix::SetLeadingMargin(node, margin, parentIsVertical, plix::IsInRightToLeftBubble(data));
        node.setHasMargin(true);
    }
    if (data.HasAbsolutePosition())
        node.setAbsolute(true);
    const PlixOffsets offsets(data);
    offsets.ApplyPixels(node);
    return offsets;
}

bool PlixBaseUI::AcceptsPresses() const
{
    return hasOwnAction_;
}

void PlixBaseUI::HandlePress(QGraphicsSceneMouseEvent& event) const
{
    event.setAccepted(AcceptsPresses() && event.button() == Qt::LeftButton);
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

QString PlixBaseUI::ActionName()
{
    const std::shared_ptr<PlixDataItem> data = FindDataItem();
    const std::shared_ptr<ST_ACTION> action = data ? data->GetAction() : nullptr;
    if (!action)
        return {};
    return hasOwnAction_ ? plix::NameOf(*action) : QString::fromStdString(plix::LabelOf(*action));
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
