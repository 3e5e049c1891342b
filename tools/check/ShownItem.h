#pragma once

#include "check/CardItem.h"

#include <QRectF>
#include <QString>

#include <memory>
#include <vector>

class QGraphicsItem;
class QGraphicsObject;

namespace plix::tool {

// A component of a card as it is laid out.
struct ShownItem {
    // Null for the card itself.
    QGraphicsObject* object = nullptr;
    CardItem source;
    const ShownItem* box = nullptr; // null for the top item of a zone
    std::vector<std::unique_ptr<ShownItem>> children;

    // In the scene. A text may be larger than its place.
    QRectF place() const;
    QRectF painted() const;
    bool isText() const;
    QString text() const; // of a text or a button
    // The smallest width in which a text or a label is shown whole, in one line.
    double neededWidth() const;
};

// The items of a card, each with its JSON. Skips what is not built.
std::vector<std::unique_ptr<ShownItem>> shownItems(const QGraphicsItem& card, const JsonNode& root);

} // namespace plix::tool
