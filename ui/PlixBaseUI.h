#pragma once

#include "layout/PlixLink.h"
#include "model/PlixItemRegistry.h"

#include <plix/Plix.h>

#include <functional>
#include <memory>
#include <string>

class PlixDataItemCommon;
class PlixDataMgr;
class PlixOffsets;
class QGraphicsItem;
class QGraphicsLayoutItem;
class QGraphicsSceneMouseEvent;
class QString;
class YogaLayoutItem;

// Base of every item of a card, next to a graphics item and a layout node: its link
// to its controller, its data item and its host.
//
// An item holds no pointer to its data item. It finds that by the key that its
// graphics item carries, so that both may be deleted in any order.
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

    // The parent layout for the items below this one. Null: their parent item and
    // their layout node are enough.
    virtual QGraphicsLayoutItem* GetChildParentLayout();

    // Applies the data item. Called before any child is added. False, and nothing
    // changed, if the data is not of the kind that this item draws.
    virtual bool Init();

    virtual void SetClickFunc(const ClickFunc& func);
    virtual void SetDownloadFunc(const DownloadFunc& func);
    virtual void SetFrom(int from);

    // What the item says, for notifications and search: all of its text, also where
    // it is elided, with a line for each row. Empty for items without text.
    virtual QString PlainText() const;

    // Whether a click on this item would reach the host.
    virtual bool HasAction();

    // Whether a click on the item delivers its own action. A text without one may
    // be clickable, too: then the click is that of the box around it.
    bool HasOwnAction() const { return hasOwnAction_; }
    // Hands the item's own action to the host, who may delete this item meanwhile:
    // return at once.
    void DeliverClick();
    // What screen readers call an item that has no words: a name of its action. Not empty if the
    // item has an action of its own.
    QString ActionName();

    // The controller that built the item. It may be freed before the item.
    void SetOwner(PlixDataController* owner);
    PlixDataController* GetOwner() const { return owner_; }

protected:
    // The data item as a `Data`; null if it is of another type.
    template <typename Data> std::shared_ptr<Data> FindData()
    {
        return std::dynamic_pointer_cast<Data>(FindDataItem());
    }

    // The owner; null once it is freed.
    PlixDataMgr* Manager() const;

    // Gives the node the margin, position and pixel offsets of `data`. Returns the
    // offsets: who resolves percentages, and when, differs between the items.
    PlixOffsets ApplyPlacement(const PlixDataItemCommon& data, bool parentIsVertical);

    // Whether the item accepts presses of the left button, so that nothing below
    // it is clicked. By default, it does if it has an action of its own.
    virtual bool AcceptsPresses() const;

    // The one rule for clicks. Accepts or ignores a press: Qt delivers the
    // release only to the item that accepted the press.
    void HandlePress(QGraphicsSceneMouseEvent& event) const;
    // DeliverClick(), if `event` ends a click.
    void HandleRelease(const QGraphicsSceneMouseEvent& event);

    // Gives the mouse grab back. Call it before the host learns of a mouse event:
    // the host may run an event loop, or throw, and the scene would go on sending
    // every mouse event to this item.
    void ReleaseMouse();

    bool actionSuppressed_ = false;
    bool clickable_ = false;
    ClickFunc clickFunc_;
    bool hasOwnAction_ = false;

private:
    std::shared_ptr<PlixDataItem> FindDataItem();
    // Whether the release of a mouse button ends a click on this item: one of
    // the left button that did not leave the item.
    bool IsClick(const QGraphicsSceneMouseEvent& event);

    PlixDataController* owner_ = nullptr;
    PlixLink<PlixDataMgr> manager_;
};
