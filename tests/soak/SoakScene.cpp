#include "soak/SoakScene.h"

#include "bench/cards/ThreadClock.h"

#include <plix/Plix.h>

#include <QApplication>
#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QGraphicsView>

#include <vector>

namespace plix::test {
namespace {

constexpr char kSmallCard[] = R"({"type": "bubble", "size": "kilo", "body": {"type": "box",
    "layout": "vertical", "contents": [
      {"type": "text", "text": "Dinner is ready at seven."},
      {"type": "button", "action": {"type": "message", "label": "Yes", "text": "y"}}]}})";

struct LiveCard {
    PlixDataController* controller;
    QGraphicsItem* item;
};

LiveCard addCard(QGraphicsScene& scene, double y)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, kSmallCard);
    QGraphicsItem* const item = Plix_CreateQGraphicsItem(controller);
    item->setPos(0, y);
    scene.addItem(item);
    return {controller, item};
}

} // namespace

SceneTimes timeScene(int count)
{
    constexpr double kDistance = 150;
    QGraphicsScene scene;
    QGraphicsView view(&scene);
    view.show();
    const double start = bench::threadMicroseconds();
    std::vector<LiveCard> cards;
    for (int i = 0; i < count; ++i)
        cards.push_back(addCard(scene, i * kDistance));
    QApplication::processEvents();
    const double built = bench::threadMicroseconds();
    for (const LiveCard& card : cards) {
        scene.removeItem(card.item);
        delete card.item;
        Plix_Free(card.controller);
    }
    QApplication::processEvents();
    const double freed = bench::threadMicroseconds();
    return {count, (built - start) / count, (freed - built) / count};
}

} // namespace plix::test
