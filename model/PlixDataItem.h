#pragma once

#include "model/PlixItemKind.h"

#include <plix/Plix.h>

#include <memory>

// One node of a card message: what the JSON said, with defaults filled in.
//
// Items are made by PlixDataItemCreater and live in shared pointers only. A
// child holds its parent strongly, and containers hold their children, so a
// tree is a cycle: whoever drops one calls DiscardDataTree.
class PlixDataItem : public std::enable_shared_from_this<PlixDataItem> {
public:
    virtual ~PlixDataItem();

    PlixDataItem(const PlixDataItem&) = delete;
    PlixDataItem& operator=(const PlixDataItem&) = delete;

    virtual int GetType() const;
    // The flex-grow factor that the layout is to use.
    virtual int GetGrow() const = 0;
    virtual void SetIndex(int index);
    // The position among the siblings, as the JSON array counts.
    virtual int GetIndex() const;
    virtual void SetParent(std::shared_ptr<PlixDataItem> parent);
    // Empty when the JSON gave no action.
    virtual std::shared_ptr<ST_ACTION> GetAction() const;

    std::shared_ptr<PlixDataItem> GetParent() const { return parent_; }
    void SetAction(std::shared_ptr<ST_ACTION> action);

    // The host's settings that apply to this item.
    void SetAttributes(const PlixDisplayParam& param) { displayParam_ = param; }

    // Whether the nearest action that carries any link, the item's own or an
    // ancestor's, leads to mobile apps only.
    bool IsAppOnlyAction() const;

protected:
    explicit PlixDataItem(PlixItemKind kind);

private:
    int kind_;
    std::shared_ptr<PlixDataItem> parent_;
    int index_ = 0;
    std::shared_ptr<ST_ACTION> action_;
    PlixDisplayParam displayParam_;
};
