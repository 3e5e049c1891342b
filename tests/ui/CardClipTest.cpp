// Qt does not clip the items of a card to its outline: those clip themselves that need it.
#include "CardTree.h"
#include "ExampleCards.h"
#include "PaintedCardWriter.h"
#include "support/LiveView.h"
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsWidget>
#include <QImage>
#include <QPainter>

#include <list>

namespace plix::test {
namespace {

constexpr auto kQtClips = QGraphicsItem::ItemClipsToShape | QGraphicsItem::ItemClipsChildrenToShape;

bool letsQtClip(const QGraphicsItem& root)
{
    return (root.flags() & kQtClips) == kQtClips;
}

QImage paint(QGraphicsScene& scene, double scale)
{
    const QRectF rect = scene.sceneRect();
    QImage image((rect.size() * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, image.rect(), rect);
    return image;
}

void expectSameAsClippedByQt(const std::string& json, double scale)
{
    const TestCard card(json, &showExamplePictures);
    QGraphicsScene scene;
    scene.addItem(card.root());
    scene.setSceneRect(card.root()->sceneBoundingRect().adjusted(-5, -5, 5, 5));
    ASSERT_FALSE(letsQtClip(*card.root()));
    paint(scene, scale); // Qt may draw large letters in another way at first
    const QImage own = paint(scene, scale);
    card.root()->setFlag(QGraphicsItem::ItemContainsChildrenInShape, false);
    card.root()->setFlags(card.root()->flags() | kQtClips);
    const QImage clipped = paint(scene, scale);
    scene.removeItem(card.root());
    const QRect difference = differenceOf(own, clipped);
    EXPECT_TRUE(difference.isEmpty()) << difference.x() << ", " << difference.y() << " "
                                      << difference.width() << " x " << difference.height();
}

using CardClip = PlixTest;

TEST_F(CardClip, LooksAsIfQtClippedExampleCards)
{
    for (const std::string& name : exampleNames()) {
        SCOPED_TRACE(name);
        for (const double scale : {1.0, 2.0})
            expectSameAsClippedByQt(exampleCard(name), scale);
    }
}

TEST_F(CardClip, LooksAsIfQtClippedGeneratedCards)
{
    for (unsigned seed = 0; seed < 60; ++seed) {
        const std::string json = PaintedCardWriter(seed).card();
        SCOPED_TRACE(json);
        expectSameAsClippedByQt(json, seed % 2 ? 1 : 2);
    }
}

const std::string kRedBody =
    bubbleWithBody(box("vertical", box("vertical", "", R"("height": "60px",)"),
                       R"("backgroundColor": "#FF0000", "paddingAll": "0px",)"));

TEST_F(CardClip, IsLeftToTheItemsOnlyInAScene)
{
    const TestCard card(kRedBody);
    EXPECT_TRUE(letsQtClip(*card.root()));
    QGraphicsScene scene;
    scene.addItem(card.root());
    EXPECT_FALSE(letsQtClip(*card.root()));
    scene.removeItem(card.root());
    EXPECT_TRUE(letsQtClip(*card.root()));
}

TEST_F(CardClip, IsLeftToQtForItemsOfTheHost)
{
    const TestCard card(kRedBody);
    QGraphicsScene scene;
    auto* const before = new QGraphicsRectItem(-10, -10, 50, 50, card.root());
    scene.addItem(card.root());
    EXPECT_TRUE(letsQtClip(*card.root()));
    scene.removeItem(card.root());
    delete before;
    scene.addItem(card.root());
    EXPECT_FALSE(letsQtClip(*card.root()));
    auto* const later = new QGraphicsRectItem(-10, -10, 50, 50, card.root());
    EXPECT_TRUE(letsQtClip(*card.root()));
    later->setBrush(Qt::blue);
    scene.setSceneRect(-20, -20, 100, 80);
    const QImage image = paint(scene, 1);
    EXPECT_EQ(image.pixelColor(15, 40), QColor(Qt::white));
    EXPECT_EQ(image.pixelColor(21, 21), QColor(Qt::white)) << "the corner";
    EXPECT_EQ(image.pixelColor(40, 40), QColor(Qt::blue));
    scene.removeItem(card.root());
}

struct ItemRow {
    const char* name;
    std::string item;

    friend std::ostream& operator<<(std::ostream& out, const ItemRow& row)
    {
        return out << row.name;
    }
};

// A painted pixel outside of the outline; null if there is none.
QPoint paintedOutside(const QImage& image, const QPainterPath& outline)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const bool isPainted = image.pixelColor(x, y) != QColor(Qt::white);
            if (isPainted && !outline.contains(QPointF(x + 0.5, y + 0.5)))
                return {x, y};
        }
    }
    return {};
}

class MovedItem : public PlixTest, public testing::WithParamInterface<ItemRow> { };

// Hosts may move items, for example to animate them.
TEST_P(MovedItem, IsNotShownOutsideOfTheCard)
{
    const TestCard card(R"({"type": "bubble", "hero": )" + GetParam().item + "}",
                        &showExamplePictures);
    QGraphicsScene scene;
    scene.addItem(card.root());
    const QRectF rect = card.root()->sceneBoundingRect();
    scene.setSceneRect(rect.adjusted(-60, -60, 60, 60));
    QGraphicsItem* const item = card.item({0});
    for (const QPointF& move : {QPointF(-20, -5), QPointF(20, 5), QPointF(0, -9)}) {
        item->setPos(move);
        const QImage image = paint(scene, 1);
        QPainterPath outline;
        outline.addRoundedRect(rect.adjusted(-1, -1, 1, 1).translated(60, 60), 12, 12);
        EXPECT_EQ(paintedOutside(image, outline), QPoint()) << move.x();
    }
    scene.removeItem(card.root());
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, MovedItem,
    testing::Values(
        ItemRow {"Box", box("vertical", "", R"("height": "60px", "backgroundColor": "#FF0000",)")},
        ItemRow {"BorderedBox",
                 box("vertical", "",
                     R"("height": "60px", "borderColor": "#FF0000", "borderWidth": "bold",)")},
        ItemRow {"RoundBox",
                 box("vertical", "",
                     R"("height": "60px", "backgroundColor": "#FF0000", "cornerRadius": "4px",)")},
        ItemRow {"Text", text("WWWWWWWWWWWWWWWWWWWWWWWWWWWWW", R"("size": "3xl",)")},
        ItemRow {"Image", component("image", R"("url": "https://a.example/mountain.png",
                                               "size": "full", "aspectMode": "cover",)")},
        ItemRow {"Button",
                 component("button", R"("style": "primary", "action": {"label": "Go"},)")},
        ItemRow {"Separator", component("separator", R"("color": "#FF0000",)")}),
    RowName());

} // namespace
} // namespace plix::test
