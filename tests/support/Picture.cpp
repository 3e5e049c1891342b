#include "support/Picture.h"

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

QRectF Picture::inkIn(const QRectF& area, const QPointF& ground) const
{
    const QColor groundColor = at(ground);
    const QRect pixels = area.toAlignedRect() & image_.rect();
    QRect ink;
    for (int y = pixels.top(); y <= pixels.bottom(); ++y) {
        for (int x = pixels.left(); x <= pixels.right(); ++x) {
            if (image_.pixelColor(x, y) != groundColor)
                ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

} // namespace plix::test
