#pragma once

#include "layout/PlixLink.h"
#include "model/PlixItemRegistry.h"

#include <plix/Plix.h>

#include <functional>
#include <memory>
#include <string>

class PlixDataMgr;
class QGraphicsItem;
class QGraphicsLayoutItem;
class QGraphicsSceneMouseEvent;
class QSizeF;
class YogaLayoutItem;

// What every drawn item of a card is, next to a graphics item and a layout
// item: the link to its controller, its data and its host.
//
// An item holds no pointer to its data item. It finds it through the key that
// its graphics item carries, so that items and data may go in any order.
class PlixBaseUI {
public:
    using ClickFunc = std::function<void(ST_ACTION&)>;
    using DownloadFunc = std::function<std::string(const std::string&)>;

    PlixBaseUI() = default;
    virtual ~PlixBaseUI();

    PlixBaseUI(const PlixBaseUI&) = delete;
    PlixBaseUI& operator=(const PlixBaseUI&) = delete;

    virtual QGraphicsItem* GetGraphicsItem() = 0;
    virtual QGraphicsLayoutItem* GetLayoutItem() = 0;
    virtual YogaLayoutItem* GetYogaItem() = 0;

    // The parent layout for items below this one: none, their parent item and
    // their layout node are enough.
    virtual QGraphicsLayoutItem* GetChildParentLayout();

    // Applies the data item, before any child is added. False, and nothing
    // changed, when the data is not of the kind that this item draws.
    virtual bool Init();

    virtual void SetClickFunc(const ClickFunc& func);
    virtual void SetDownloadFunc(const DownloadFunc& func);
    virtual void SetFrom(int from);

    // Whether a click on this item would reach the host.
    virtual bool HasAction();

    // The controller that built the item, and may be freed before it.
    void SetOwner(PlixDataController* owner);
    PlixDataController* GetOwner() const { return owner_; }

protected:
    // The data item as a `Data`; null when it is something else.
    template <typename Data> std::shared_ptr<Data> FindData()
    {
        return std::dynamic_pointer_cast<Data>(FindDataItem());
    }

    // The owner, for as long as it is there.
    PlixDataMgr* Manager() const;

    // Gives the node the margin, position and pixel offsets of the data item.
    void ApplyPlacement(bool parentIsVertical);
    // Leaves percentage offsets to the layout.
    void ApplyPercentOffsets();
    // Fixes percentage offsets as they are in a parent of this size.
    void ResolvePercentOffsets(const QSizeF& parentSize);

    // Whether the release of a mouse button ends a click on this item: one of
    // the left button that did not leave the item.
    bool IsClick(const QGraphicsSceneMouseEvent& event);

    // To be called before the host learns of a mouse event. The host may then
    // run an event loop, or throw: the scene must not go on sending all mouse
    // events to this item.
    void ReleaseMouse();

    // Hands the data item's action to the host. The host may do anything
    // meanwhile, so this item may be gone afterwards: return at once.
    void DeliverClick();

    bool actionSuppressed_ = false;
    bool clickable_ = false;
    ClickFunc clickFunc_;

private:
    std::shared_ptr<PlixDataItem> FindDataItem();

    PlixDataController* owner_ = nullptr;
    PlixLink<PlixDataMgr> manager_;
};
