#include "Ink.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace {

constexpr qreal kMargin = 50;

} // namespace

Ink::Ink(QGraphicsItem& item, qreal scale)
    : scale_(scale)
{
    const QRectF area = item.boundingRect().adjusted(-kMargin, -kMargin, kMargin, kMargin);
    origin_ = area.topLeft();
    picture_ = QImage((area.size() * scale).toSize(), QImage::Format_RGB32);
    picture_.fill(Qt::white);

    QPainter painter(&picture_);
    painter.scale(scale, scale);
    painter.translate(-origin_);
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.boundingRect();
    item.paint(&painter, &option, nullptr);
}

QRectF Ink::rect() const
{
    return rectIn(QRectF(origin_, picture_.size() / scale_));
}

QRectF Ink::rectIn(const QRectF& area) const
{
    QRect inked;
    for (int y = 0; y < picture_.height(); ++y) {
        for (int x = 0; x < picture_.width(); ++x) {
            const QPointF centre = QPointF(x + 0.5, y + 0.5) / scale_ + origin_;
            if (area.contains(centre) && picture_.pixel(x, y) != qRgb(255, 255, 255))
                inked |= QRect(x, y, 1, 1);
        }
    }
    if (inked.isEmpty())
        return {};
    return QRectF(QPointF(inked.topLeft()) / scale_ + origin_, QSizeF(inked.size()) / scale_);
}

bool Ink::has(const QColor& color) const
{
    for (int y = 0; y < picture_.height(); ++y) {
        for (int x = 0; x < picture_.width(); ++x) {
            if (picture_.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}
