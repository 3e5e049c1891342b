#pragma once

#include "model/PlixFieldTexts.h"
#include "model/PlixItemKind.h"
#include "model/PlixStoredAction.h"

#include <plix/Plix.h>

#include <memory>

// One item of a card message: the values of the JSON, or their defaults.
//
// PlixDataItemCreater creates items; shared pointers own them. A child shares the
// ownership of its parent, and a container that of its children. So a tree is a
// cycle that does not free itself: call DiscardDataTree.
class PlixDataItem : public std::enable_shared_from_this<PlixDataItem> {
public:
    virtual ~PlixDataItem();

    PlixDataItem(const PlixDataItem&) = delete;
    PlixDataItem& operator=(const PlixDataItem&) = delete;

    virtual int GetType() const;
    // The flex-grow factor that the layout is to use.
    virtual int GetGrow() const = 0;
    virtual void SetIndex(int index);
    // The index in the JSON array, which counts skipped elements, too.
    virtual int GetIndex() const;
    virtual void SetParent(std::shared_ptr<PlixDataItem> parent);
    // Null if the JSON has no action. Later calls return the same record only as
    // long as somebody holds it.
    virtual std::shared_ptr<ST_ACTION> GetAction() const;

    std::shared_ptr<PlixDataItem> GetParent() const { return parent_; }
    void SetAction(const std::shared_ptr<ST_ACTION>& action);

    // The host's settings. An item needs one of them; the graphics items read the
    // others from the controller.
    void SetAttributes(const PlixDisplayParam& param) { mobileOnlyCheck_ = param.mobileOnlyCheck; }

    // Whether the nearest action with a link, the item's own or an ancestor's,
    // opens mobile apps only. False if the host has turned this check off.
    bool IsAppOnlyAction() const;

protected:
    explicit PlixDataItem(PlixItemKind kind);

    PlixFieldTexts fields_;

private:
    std::shared_ptr<PlixDataItem> parent_;
    std::unique_ptr<const PlixStoredAction> action_;
    int index_ = 0;
    int kind_;
    bool mobileOnlyCheck_ = true;
};
