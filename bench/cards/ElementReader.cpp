#include "ElementReader.h"

#include "RecordingDevice.h"
#include "TextReader.h"

#include <QGraphicsObject>
#include <QVariant>

namespace bench {
namespace {

// The bubble fills a rectangle and cuts itself to its outline: by hand, the
// outline is filled.
std::vector<PaintedFill> fillsOf(const QGraphicsItem& item, const PaintRecord& record)
{
    std::vector<PaintedFill> fills = record.fills;
    if (!(item.flags() & QGraphicsItem::ItemClipsToShape))
        return fills;
    const QPainterPath shape = item.shape();
    for (PaintedFill& fill : fills) {
        if (shape.elementCount() > fill.path.elementCount())
            fill.path = shape;
    }
    return fills;
}

std::optional<Picture> pictureOf(const QGraphicsObject& item, const PaintRecord& record)
{
    const QString file = item.property("pictureFile").toString();
    if (file.isEmpty() || record.pictures.empty())
        return std::nullopt;
    return Picture {file, record.pictures.front()};
}

// The stops of the Tab key on texts show nothing.
bool isShown(QGraphicsItem& item)
{
    const QGraphicsObject* const object = item.toGraphicsObject();
    return item.isVisible() && !(object && object->inherits("PlixFocusStop"));
}

void readChildren(const QGraphicsItem& item, Element& element)
{
    std::vector<QRectF> rects;
    for (QGraphicsItem* child : item.childItems()) {
        if (!isShown(*child))
            continue;
        element.children.push_back(readElement(*child));
        rects.push_back(element.children.back().rect);
    }
    element.flow = flowOf(element.rect.size(), rects);
}

} // namespace

Element readElement(QGraphicsItem& card)
{
    Element element;
    element.rect = card.mapRectToParent(card.boundingRect());
    const PaintRecord record = recordPaint(card);
    element.fills = fillsOf(card, record);
    if (const QGraphicsObject* object = card.toGraphicsObject()) {
        element.text = readText(*object, record);
        element.picture = pictureOf(*object, record);
    }
    readChildren(card, element);
    return element;
}

} // namespace bench
