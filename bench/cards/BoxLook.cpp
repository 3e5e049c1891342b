#include "BoxLook.h"

#include "Element.h"

#include <algorithm>

namespace bench {
namespace {

// How far from the left the upper edge begins.
qreal radiusOf(const QPainterPath& path)
{
    const QRectF rect = path.boundingRect();
    qreal radius = rect.width();
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        if (element.y - rect.top() < 0.01)
            radius = std::min(radius, element.x - rect.left());
    }
    return radius;
}

} // namespace

BoxLook lookOf(const Element& element)
{
    if (element.fills.empty())
        return {};
    const PaintedFill& fill = element.fills.front();
    const bool isBorder =
        fill.brush.style() == Qt::NoBrush || !fill.path.contains(fill.path.boundingRect().center());
    return isBorder ? BoxLook() : BoxLook {fill.brush.color(), radiusOf(fill.path)};
}

} // namespace bench
