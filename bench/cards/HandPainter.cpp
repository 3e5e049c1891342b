#include "HandPainter.h"

#include "Element.h"

#include <QPainter>
#include <QTextLayout>

namespace bench {
namespace {

bool isRectangle(const QPainterPath& path)
{
    constexpr int corners = 5;
    if (path.elementCount() != corners)
        return false;
    for (int i = 1; i < corners; ++i) {
        const QPainterPath::Element from = path.elementAt(i - 1);
        const QPainterPath::Element to = path.elementAt(i);
        if (to.isCurveTo() || (from.x != to.x && from.y != to.y))
            return false;
    }
    return true;
}

} // namespace

HandPainter::HandPainter(const Element& card,
                         const std::vector<std::unique_ptr<QTextLayout>>& layouts)
    : layouts_(layouts)
{
    add(card, QPointF());
}

void HandPainter::add(const Element& element, const QPointF& origin)
{
    Part part {origin, &element, nullptr, {}};
    if (element.text) {
        part.layout = layouts_[nextLayout_++].get();
        if (part.layout->lineCount() > 0) {
            const qreal ascent = part.layout->lineAt(0).ascent();
            part.textOrigin = QPointF(0, element.text->baseline - ascent);
        }
    }
    parts_.push_back(part);
    for (const Element& child : element.children)
        add(child, origin + child.rect.topLeft());
}

void HandPainter::paint(QPainter& painter)
{
    for (const Part& part : parts_)
        paintPart(painter, part);
}

void HandPainter::paintPart(QPainter& painter, const Part& part)
{
    const Element& element = *part.element;
    if (!element.fills.empty() || element.picture) {
        painter.translate(part.origin);
        for (const PaintedFill& fill : element.fills)
            paintFill(painter, fill);
        if (element.picture)
            paintPicture(painter, *element.picture);
        painter.translate(-part.origin);
    }
    if (part.layout) {
        painter.setPen(element.text->color);
        part.layout->draw(&painter, part.origin + part.textOrigin);
    }
}

void HandPainter::paintFill(QPainter& painter, const PaintedFill& fill)
{
    if (fill.pen.style() == Qt::NoPen && isRectangle(fill.path)) {
        painter.fillRect(fill.path.boundingRect(), fill.brush);
    } else if (fill.pen.style() == Qt::NoPen) {
        painter.fillPath(fill.path, fill.brush);
    } else {
        painter.setPen(fill.pen);
        painter.setBrush(fill.brush);
        painter.drawPath(fill.path);
    }
}

void HandPainter::paintPicture(QPainter& painter, const Picture& picture)
{
    const QRectF& target = picture.painted.target;
    const QImage& image = pictures_.scaled(picture.file, target.size().toSize());
    if (picture.painted.outline.isEmpty()) {
        painter.drawImage(target.topLeft(), image);
        return;
    }
    QBrush brush(image);
    brush.setTransform(QTransform::fromTranslate(target.x(), target.y()));
    painter.fillPath(picture.painted.outline, brush);
}

} // namespace bench
