#pragma once

#include "ChildWalk.h"

#include <QAccessibleWidget>

class QGraphicsView;

namespace kestro {

// A graphics view with the items of its scene, and its child widgets after them.
class AccessibleGraphicsView : public QAccessibleWidget {
public:
    explicit AccessibleGraphicsView(QGraphicsView& view);

    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;

private:
    // Null while the view is being deleted.
    QGraphicsView* View() const;
    QVector<QAccessibleInterface*> Items() const;

    mutable ChildWalk items_;
};

} // namespace kestro
