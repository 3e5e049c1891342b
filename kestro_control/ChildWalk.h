#pragma once

#include <QAccessible>
#include <QVector>

#include <functional>

namespace kestro {

// The children of an interface. Finding them takes time that grows with their number. So
// a client that goes from each child to the next gets all of them from one list. Every
// other question is answered by a new list, because nobody tells when items come and go.
class ChildWalk {
public:
    using FindChildren = std::function<QVector<QAccessibleInterface*>()>;

    explicit ChildWalk(FindChildren findChildren);

    int Count() const;
    // -1 if it is no child.
    int IndexOf(const QAccessibleInterface* child) const;
    // Null if there is no such child.
    QAccessibleInterface* At(int index);

private:
    QAccessibleInterface* Listed(int index) const;

    FindChildren findChildren_;
    // Not interfaces, which are deleted with their items.
    QVector<QAccessible::Id> list_;
    int next_ = 0;
};

} // namespace kestro
