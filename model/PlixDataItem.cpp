#include "model/PlixDataItem.h"

#include <utility>

namespace {

bool OpensDesktop(const ST_ACTION& action)
{
    return !action.uri.empty() || !action.pcUri.empty() || !action.webUri.empty();
}

bool OpensMobileApp(const ST_ACTION& action)
{
    return !action.appUri.empty() || !action.androidUri.empty() || !action.iosUri.empty();
}

} // namespace

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
    return action_;
}

void PlixDataItem::SetAction(std::shared_ptr<ST_ACTION> action)
{
    action_ = std::move(action);
}

bool PlixDataItem::IsAppOnlyAction() const
{
    for (const PlixDataItem* item = this; item; item = item->parent_.get()) {
        if (!item->displayParam_.mobileOnlyCheck)
            return false;
        const std::shared_ptr<ST_ACTION> action = item->GetAction();
        if (!action)
            continue;
        if (OpensDesktop(*action))
            return false;
        if (OpensMobileApp(*action))
            return true;
    }
    return false;
}
