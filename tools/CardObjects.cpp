#include "CardObjects.h"

#include <QGraphicsObject>

namespace plix::tool {

QVector<QGraphicsObject*> childObjects(const QGraphicsItem& item)
{
    QVector<QGraphicsObject*> objects;
    for (QGraphicsItem* child : item.childItems()) {
        QGraphicsObject* const object = child->toGraphicsObject();
        if (object && !object->inherits("PlixFocusStop"))
            objects.append(object);
    }
    return objects;
}

} // namespace plix::tool
