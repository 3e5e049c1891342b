#pragma once

#include "ui/PlixCardOutline.h"

#include <QPainterPath>
#include <QRectF>

#include <optional>

class QGraphicsItem;
class QPainter;

// How the outline of a card cuts an item in it, in coordinates of the item.
struct PlixCardCut {
    // What it leaves of the item, or more.
    QPainterPath path;
    // The outline itself, if it only cuts corners of the item.
    std::optional<PlixCardOutline> outline;
};

namespace plix {

// How the outline of the card around `item` cuts `painted`, where the item paints.
// Nothing if it cuts nothing, or if Qt clips to it (see PlixBubbleUI).
std::optional<PlixCardCut> CutByCard(const QGraphicsItem& item, const QRectF& painted);

} // namespace plix

// Clips a painter to what the outline of a card leaves of an item, if it cuts it, for as
// long as it lives.
class PlixCardClip {
public:
    PlixCardClip(QPainter& painter, const std::optional<PlixCardCut>& cut);
    ~PlixCardClip();

    PlixCardClip(const PlixCardClip&) = delete;
    PlixCardClip& operator=(const PlixCardClip&) = delete;

private:
    // Null: it need not be clipped.
    QPainter* clipped_ = nullptr;
};
