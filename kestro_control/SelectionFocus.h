#pragma once

#include <QGraphicsWidget>

namespace kestro {

class ItemSelection;

// Has the keyboard focus while a text of an item is selected, and handles the keys. A widget
// of its own, because the Tab key walks through widgets only: if another item had the focus
// last, Qt would return to that and not walk. Draws nothing, and leaves the mouse to the text.
class SelectionFocus : public QGraphicsWidget {
    Q_OBJECT

public:
    // A child of `item`, which owns it. Both must be in a scene. `selection` must live longer.
    SelectionFocus(QGraphicsItem& item, ItemSelection& selection);

    // Takes the keyboard focus in the scene, and for the view of `viewport` in its window,
    // unless that view never has it. Calls slots, which may delete this item.
    void Take(QWidget* viewport);

    QPainterPath shape() const override;
    // Where a parent clips, Qt calls this instead of shape().
    bool contains(const QPointF&) const override { return false; }

protected:
    bool sceneEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    ItemSelection& selection_;
};

} // namespace kestro
