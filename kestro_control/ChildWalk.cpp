#include "ChildWalk.h"

#include <utility>

namespace kestro {

ChildWalk::ChildWalk(FindChildren findChildren)
    : findChildren_(std::move(findChildren))
{
}

int ChildWalk::Count() const
{
    return findChildren_().size();
}

int ChildWalk::IndexOf(const QAccessibleInterface* child) const
{
    return findChildren_().indexOf(const_cast<QAccessibleInterface*>(child));
}

QAccessibleInterface* ChildWalk::At(int index)
{
    const bool isNext = index > 0 && index == next_;
    QAccessibleInterface* child = isNext ? Listed(index) : nullptr;
    if (!child) {
        list_.clear();
        for (QAccessibleInterface* found : findChildren_())
            list_.push_back(QAccessible::uniqueId(found));
        child = Listed(index);
    }
    next_ = index + 1;
    return child;
}

QAccessibleInterface* ChildWalk::Listed(int index) const
{
    return QAccessible::accessibleInterface(list_.value(index));
}

} // namespace kestro
