#pragma once

#include <QImage>

class QGraphicsItem;
class QGraphicsScene;

namespace plix::tool {

struct CardPicture {
    QImage image;
    // The card is larger than a picture may be, and its lower end is missing.
    bool isCut = false;
};

// Draws what the scene shows of `card`, with `scale` device pixels for each
// logical one. The picture is transparent where the card is not.
CardPicture paintCard(QGraphicsScene& scene, const QGraphicsItem& card, double scale);

} // namespace plix::tool
