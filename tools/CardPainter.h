#pragma once

#include <QImage>

class QGraphicsItem;
class QGraphicsScene;

namespace plix::tool {

struct CardPicture {
    QImage image;
    // The card is larger than a picture may be, so its lower end is missing.
    bool isCut = false;
};

// Draws `card` as the scene shows it, with `scale` device pixels per logical pixel.
// The picture is transparent outside the card.
CardPicture paintCard(QGraphicsScene& scene, const QGraphicsItem& card, double scale);

} // namespace plix::tool
