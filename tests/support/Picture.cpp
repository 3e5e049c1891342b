#include "support/Picture.h"

#include "support/Pixels.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>

namespace plix::test {

Picture::Picture(QGraphicsItem& root)
{
    QGraphicsScene scene;
    scene.addItem(&root);
    const QRectF rect = root.sceneBoundingRect();
    image_ = QImage(rect.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image_.fill(Qt::white);
    QPainter painter(&image_);
    scene.render(&painter, image_.rect(), rect);
    painter.end();
    scene.removeItem(&root);
}

QColor Picture::at(const QPointF& point) const
{
    return image_.pixelColor(static_cast<int>(point.x()), static_cast<int>(point.y()));
}

QRectF Picture::inkIn(const QRectF& area, const QPointF& background) const
{
    return boundsOfPixels(image_, area.toAlignedRect() & image_.rect(),
                          [color = at(background).rgba()](QRgb pixel) { return pixel != color; });
}

} // namespace plix::test
