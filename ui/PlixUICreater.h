#pragma once

#include <plix/Plix.h>

#include <functional>
#include <map>

class PlixBaseUI;
class QGraphicsItem;
class QGraphicsLayoutItem;

// Makes the item that draws a kind of data item.
class PlixUICreater {
public:
    static PlixUICreater& GetInstance();

    // A new item, owned by `parentItem` or, without one, by the caller. Null
    // for a kind that is not drawn.
    PlixBaseUI* Create(int kind, QGraphicsItem* parentItem, QGraphicsLayoutItem* parentLayout,
                       const PlixDisplayParam& param) const;

private:
    PlixUICreater();

    using Creator =
        std::function<PlixBaseUI*(QGraphicsItem*, QGraphicsLayoutItem*, const PlixDisplayParam&)>;
    std::map<int, Creator> creators_;
};
