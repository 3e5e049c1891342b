// How many clips a card sets while it is painted. Each one takes about as long as drawing a
// line of text, and drawing is slower inside of one that is no rectangle.
#include "CardTree.h"
#include "ExampleCards.h"
#include "support/ClipCounter.h"
#include "support/PlixTest.h"

#include <QGraphicsScene>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <map>

namespace plix::test {
namespace {

struct Clips {
    // Those that the items set themselves.
    int rectangles = 0;
    int paths = 0;
    // Those that the scene sets around items. It sets rectangles around boxes, too.
    int pathsOfScene = 0;

    bool operator==(const Clips&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Clips& clips)
    {
        return out << clips.rectangles << " rectangles, " << clips.paths << " paths, "
                   << clips.pathsOfScene << " paths of the scene";
    }
};

bool hasRectangularShape(const QGraphicsItem& item)
{
    QPainterPath rectangle;
    rectangle.addRect(item.boundingRect());
    return item.shape() == rectangle;
}

void paintAlone(QGraphicsItem& item, QPaintDevice& device)
{
    QPainter painter(&device);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.setTransform(item.sceneTransform());
    QStyleOptionGraphicsItem option;
    option.exposedRect = item.boundingRect();
    item.paint(&painter, &option, nullptr);
}

Clips clipsOf(QGraphicsItem& root)
{
    QGraphicsScene scene;
    scene.addItem(&root);
    Clips clips;
    forEachItem(root, [&clips](QGraphicsItem& item) {
        ClipCounter counter;
        paintAlone(item, counter);
        clips.rectangles += counter.rectangles();
        clips.paths += counter.paths();
        if (item.flags().testFlag(QGraphicsItem::ItemClipsChildrenToShape)
            && !hasRectangularShape(item))
            ++clips.pathsOfScene;
    });
    scene.removeItem(&root);
    return clips;
}

class CardClips : public PlixTest, public testing::WithParamInterface<std::string> { };

// Rectangles: texts whose letters stick out at a side. Paths: pictures in round corners, and
// square borders. Of the cards that are not here, no item sets a clip.
const std::map<std::string, Clips> kExampleClips {
    {"animated", {2, 0}},
    {"app_only", {3, 0}},
    {"approval", {3, 0}},
    {"arabic_order", {6, 0}},
    {"boarding_pass", {3, 0}},
    {"box_layouts", {2, 0}},
    {"button_styles", {2, 0}},
    {"coffee_shop", {1, 1}},
    {"event", {0, 1}},
    {"hotel_booking", {0, 1}},
    {"incident_alert", {1, 0}},
    {"languages", {1, 0}},
    {"meeting_invitation", {2, 0}},
    {"mentions", {1, 0}},
    {"movie_poster", {0, 1}},
    {"now_playing", {1, 0}},
    {"parcel_tracking", {3, 0}},
    {"picture_fit", {9, 2}},
    {"picture_sizes", {1, 0}},
    {"product", {1, 1}},
    {"queue_ticket", {1, 0}},
    {"receipt", {5, 1}},
    {"restaurant_menu", {0, 1}},
    {"room_sensor", {2, 0}},
    {"salary_slip", {3, 0}},
    {"size_words", {5, 5}},
    {"text_styles", {3, 0}},
    {"travel", {2, 1}},
    {"weather", {1, 0}},
    {"weather_icons", {1, 0}},
};

TEST_P(CardClips, AreSetOnlyWhereSomethingIsCutOff)
{
    const TestCard card(exampleCard(GetParam()), &showExamplePictures);
    const auto known = kExampleClips.find(GetParam());
    EXPECT_EQ(clipsOf(*card.root()), known == kExampleClips.end() ? Clips() : known->second);
}

INSTANTIATE_TEST_SUITE_P(Cards, CardClips, testing::ValuesIn(exampleNames()),
                         [](const auto& card) { return card.param; });

} // namespace
} // namespace plix::test
