#pragma once

#include "view/ViewWidgets.h"

#include <QObject>

class QGraphicsObject;

namespace plix::tool {

class CardPreview;
struct ShownItem;

// Keeps the selected item the same in the card, in the tree of items and in the text.
class ItemSelection : public QObject {
    Q_OBJECT

public:
    // All must outlive this, or end with it.
    ItemSelection(const ViewWidgets& widgets, const CardPreview& preview);

    // Selects the item at the cursor of the text.
    void selectAtCursor();

private:
    void connectItems();
    void outline(QGraphicsObject* item);
    void showItem(const ShownItem* item);
    void goToText(const ShownItem* item);

    ViewWidgets widgets_;
    const CardPreview& preview_;
};

} // namespace plix::tool
