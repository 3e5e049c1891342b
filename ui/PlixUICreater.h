#pragma once

#include <plix/Plix.h>

#include <functional>
#include <map>

class PlixBaseUI;
class QGraphicsItem;
class QGraphicsLayoutItem;

// Creates the item that draws a kind of data item.
class PlixUICreater {
public:
    static PlixUICreater& GetInstance();

    // A new item. `parentItem` owns it or, if that is null, the caller. Null for a
    // kind that is not drawn.
    PlixBaseUI* Create(int kind, QGraphicsItem* parentItem, QGraphicsLayoutItem* parentLayout,
                       const PlixDisplayParam& param) const;

private:
    PlixUICreater();

    using Creator =
        std::function<PlixBaseUI*(QGraphicsItem*, QGraphicsLayoutItem*, const PlixDisplayParam&)>;
    std::map<int, Creator> creators_;
};
