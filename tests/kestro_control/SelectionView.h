#pragma once

#include "support/Mouse.h"

#include <kestro_control/TextItem.h>

// A text that the user may select, in a view.
class SelectionView : public plix::test::CardView {
public:
    explicit SelectionView(const QString& text = QString());

    // The place in the scene of the caret at `position` in `line`; the text of the line
    // must begin with that of the item's `line`-th paragraph.
    QPointF place(int position, int line = 0) const;
    // Between the left and the right end of the letter after `position`.
    QPointF on(int position, int line = 0) const;
    // Far above and below the text.
    QPointF above() const { return item->sceneBoundingRect().topLeft() + QPointF(5, -20); }
    QPointF below() const { return item->sceneBoundingRect().bottomLeft() + QPointF(5, 20); }

    // Selects the whole text as the user does, so that keys reach it.
    void selectAll();
    // Whether keys reach the selection.
    bool hasFocus();

    std::string selected() const { return item->SelectedText().toStdString(); }
    // What Ctrl+C copies; "nothing" if it copies nothing.
    std::string copied();

    void extend(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        pressKey(key, modifiers | Qt::ShiftModifier);
    }

    qreal lineHeight() const;

    const std::unique_ptr<TextItem> item;

private:
    explicit SelectionView(std::unique_ptr<TextItem> item);
};
