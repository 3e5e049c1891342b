#include "CardPainter.h"

#include "PictureLimits.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>
#include <QSize>

#include <algorithm>
#include <cmath>

namespace plix::tool {
namespace {

QSizeF wholePixels(const QSizeF& size)
{
    // A card without content has no height, but a picture must have one.
    return {std::max(1.0, std::ceil(size.width())), std::max(1.0, std::ceil(size.height()))};
}

} // namespace

CardPicture paintCard(QGraphicsScene& scene, const QGraphicsItem& card, double scale)
{
    const QRectF rect = card.sceneBoundingRect();
    const QSizeF wanted = wholePixels(rect.size() * scale);
    const QSize size = withinPictureLimits(wanted);

    CardPicture picture {QImage(size, QImage::Format_ARGB32_Premultiplied), size != wanted};
    picture.image.fill(Qt::transparent);
    picture.image.setDevicePixelRatio(scale);
    QPainter painter(&picture.image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                           | QPainter::SmoothPixmapTransform);
    const QRectF shown(rect.topLeft(), QSizeF(size) / scale);
    scene.render(&painter, QRectF(QPointF(), shown.size()), shown, Qt::IgnoreAspectRatio);
    return picture;
}

} // namespace plix::tool
