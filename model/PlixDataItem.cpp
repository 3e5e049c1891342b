#include "model/PlixDataItem.h"

#include <utility>

PlixDataItem::PlixDataItem(PlixItemKind kind)
    : kind_(kind)
{
}

PlixDataItem::~PlixDataItem() = default;

int PlixDataItem::GetType() const
{
    return kind_;
}

void PlixDataItem::SetIndex(int index)
{
    index_ = index;
}

int PlixDataItem::GetIndex() const
{
    return index_;
}

void PlixDataItem::SetParent(std::shared_ptr<PlixDataItem> parent)
{
    parent_ = std::move(parent);
}

std::shared_ptr<ST_ACTION> PlixDataItem::GetAction() const
{
    return action_ ? action_->GetRecord() : nullptr;
}

void PlixDataItem::SetAction(const std::shared_ptr<ST_ACTION>& action)
{
    action_ = action ? std::make_unique<const PlixStoredAction>(action) : nullptr;
}

bool PlixDataItem::IsAppOnlyAction() const
{
    for (const PlixDataItem* item = this; item; item = item->parent_.get()) {
        if (!item->mobileOnlyCheck_)
            return false;
        if (!item->action_)
            continue;
        if (item->action_->OpensDesktop())
            return false;
        if (item->action_->OpensMobileApp())
            return true;
    }
    return false;
}
