#pragma once

#include "check/ShownItem.h"

#include <QTreeWidget>

namespace plix::tool {

// What is known of one laid-out item: its place, what it shows, and its keys.
class ItemDetails : public QTreeWidget {
public:
    explicit ItemDetails(QWidget* parent = nullptr);

    // Nothing if `item` is null. `json` is the text of the card.
    void show(const ShownItem* item, const QByteArray& json);

private:
    QTreeWidgetItem& addGroup(const QString& title);
    void addPlace(const ShownItem& item);
    void addLook(const ShownItem& item);
    void addKeys(const ShownItem& item, const QByteArray& json);
};

} // namespace plix::tool
