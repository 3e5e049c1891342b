#pragma once

#include "model/PlixItemRegistry.h"

#include <plix/Plix.h>

#include <functional>
#include <memory>
#include <string>

class QGraphicsItem;
class QGraphicsLayoutItem;
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

    void SetOwner(PlixDataController* owner) { owner_ = owner; }
    PlixDataController* GetOwner() const { return owner_; }

protected:
    // The data item as a `Data`; null when it is something else.
    template <typename Data> std::shared_ptr<Data> FindData()
    {
        return std::dynamic_pointer_cast<Data>(FindDataItem());
    }

    // Gives the node the margin, position and offsets of the data item.
    void ApplyPlacement(bool parentIsVertical);

    // Hands the data item's action to the host. The host may do anything
    // meanwhile, so this item may be gone afterwards: return at once.
    void DeliverClick();

    PlixDataController* owner_ = nullptr;
    bool actionSuppressed_ = false;
    bool clickable_ = false;
    ClickFunc clickFunc_;

private:
    std::shared_ptr<PlixDataItem> FindDataItem();
};
