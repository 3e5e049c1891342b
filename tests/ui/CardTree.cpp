#include "CardTree.h"

#include "layout/YogaLayoutItem.h"
#include "ui/text/PlixTextUI.h"

#include <QGraphicsItem>

namespace plix::test {

void forEachItem(QGraphicsItem& root, const std::function<void(QGraphicsItem&)>& visit)
{
    std::vector<QGraphicsItem*> waiting {&root};
    while (!waiting.empty()) {
        QGraphicsItem* const item = waiting.back();
        waiting.pop_back();
        visit(*item);
        for (QGraphicsItem* child : item->childItems())
            waiting.push_back(child);
    }
}

std::vector<QRectF> geometryOf(QGraphicsItem& root)
{
    std::vector<QRectF> rects;
    forEachItem(root, [&](QGraphicsItem& item) {
        rects.push_back(item.boundingRect().translated(item.pos()));
        if (const auto* node = dynamic_cast<YogaLayoutItem*>(&item))
            rects.push_back({{}, node->geometry().size()});
    });
    return rects;
}

bool hasEmptiedText(QGraphicsItem& root)
{
    bool found = false;
    forEachItem(root, [&](QGraphicsItem& item) {
        const auto* shown = dynamic_cast<PlixTextUI*>(&item);
        found = found || (shown && shown->toPlainText().isEmpty());
    });
    return found;
}

} // namespace plix::test
