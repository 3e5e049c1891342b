#pragma once

#include "check/ShownItem.h"

#include <QGraphicsObject>
#include <QHash>
#include <QTreeWidget>

#include <memory>
#include <vector>

namespace plix::tool {

// The laid-out items of a card, with their rectangles.
class ItemTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit ItemTree(QWidget* parent = nullptr);

    // The items must stay until the next call.
    void setItems(const QGraphicsObject* card,
                  const std::vector<std::unique_ptr<ShownItem>>& items);

    // Null if the row of the card itself, or none, is selected.
    const ShownItem* selected() const;
    // Selects the row of this item; emits nothing.
    void select(const QGraphicsObject* object);
    // Selects the innermost item whose text has this byte; emits nothing.
    void selectByte(int byte);
    // Marks the row of the item; none if null.
    void mark(const QGraphicsObject* object);

Q_SIGNALS:
    // The item of the row under the mouse; null if there is none.
    void hovered(QGraphicsObject* object);
    // The user has selected another row. Null for the row of the card itself.
    void picked(const plix::tool::ShownItem* item);

protected:
    void leaveEvent(QEvent* event) override;

private:
    void add(QTreeWidgetItem& parent, const ShownItem& item);
    const ShownItem* itemOf(const QTreeWidgetItem* row) const;
    void selectRow(QTreeWidgetItem* row);

    std::vector<const ShownItem*> items_;
    QHash<const QGraphicsObject*, QTreeWidgetItem*> rows_;
    QTreeWidgetItem* marked_ = nullptr;
};

} // namespace plix::tool
