// Which item gets a click, and what arrives at the host.
#include "CardTree.h"
#include "ClickHost.h"
#include "ExampleCards.h"

#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixBubbleUI.h"

#include <QGraphicsRectItem>
#include <QGraphicsSceneMouseEvent>

namespace plix::test {
namespace {

constexpr char kSize[] = R"("width": "100px", "height": "60px",)";

using Click = PlixTest;

// The part of an item that its parents do not clip, without round corners.
QRectF visibleRect(const QGraphicsItem& item)
{
    QRectF visible = item.sceneBoundingRect();
    for (const QGraphicsItem* parent = item.parentItem(); parent; parent = parent->parentItem())
        visible &= parent->sceneBoundingRect();
    return visible.adjusted(8, 8, -8, -8);
}

// Qt looks for items within the shapes of all their parents.
TEST_F(Click, FindsEveryItemOfExampleCards)
{
    for (const std::string& name : exampleNames()) {
        const TestCard card(exampleCard(name), &showExamplePictures);
        CardView view(*card.root());
        forEachItem(*card.root(), [&](QGraphicsItem& item) {
            const QRectF visible = visibleRect(item);
            if (visible.width() < 1 || visible.height() < 1)
                return;
            for (const QPointF at : {visible.topLeft(), visible.center(), visible.bottomRight()})
                EXPECT_TRUE(view.scene().items(QRectF(at, QSizeF(1, 1))).contains(&item))
                    << name << " at " << at.x() << ", " << at.y();
        });
    }
}

TEST_F(Click, BesideABoxDoesNotArrive)
{
    ClickHost host;
    const TestCard card(bubbleWithBody(box("vertical", "", kSize + uriAction("here"))),
                        host.setUp());
    click(*card.root(), {150, 10});
    EXPECT_EQ(host.arrived, Arrived {});
}

TEST_F(Click, OnABoxWithoutAnActionGoesToTheNearestBoxWithOne)
{
    ClickHost host;
    const TestCard card(
        bubbleWithBody(box("vertical", box("horizontal", box("vertical", text("words"), kSize)),
                           uriAction("around"))),
        host.setUp());
    click(*card.root(), {30, 30});
    click(*card.root(), card.item({0, 0, 0, 0})->sceneBoundingRect().center());
    EXPECT_EQ(host.arrived, (Arrived {"around", "around"}));
}

// A box without an action does not accept presses, so the mouse cannot cause this.
TEST_F(Click, OnABoxWithoutAnActionIsPassedOnByTheBox)
{
    ClickHost host;
    const TestCard card(
        bubbleWithBody(
            box("vertical", box("vertical", box("horizontal", "", kSize)), uriAction("around"))),
        host.setUp());
    auto* const inner = card.ui<PlixBoxUI>({0, 0, 0});
    QGraphicsSceneMouseEvent event(QEvent::GraphicsSceneMouseRelease);
    event.setButton(Qt::LeftButton);
    const QPointF at = card.item({0})->sceneBoundingRect().center();
    event.setScenePos(at);
    event.setButtonDownScenePos(Qt::LeftButton, at);
    inner->HandleReleaseInside(&event);
    EXPECT_EQ(host.arrived, Arrived {"around"});
}

TEST_F(Click, GoesToTheInnermostBoxWithAnAction)
{
    ClickHost host;
    const TestCard card(
        bubbleWithBody(box("vertical", box("vertical", text("words"), kSize + uriAction("inner")),
                           uriAction("outer"))),
        host.setUp());
    click(*card.root(), {30, 30});
    click(*card.root(), card.item({0, 0, 0})->sceneBoundingRect().center());
    EXPECT_EQ(host.arrived, (Arrived {"inner", "inner"}));
}

TEST_F(Click, OnABoxForAppsGoesToTheBoxAroundIt)
{
    ClickHost host;
    const TestCard card(
        bubbleWithBody(box("vertical",
                           box("vertical", box("vertical", text("words"), appAction("app://a"))),
                           uriAction("around"))),
        host.setUp());
    click(*card.root(), card.item({0, 0, 0, 0})->sceneBoundingRect().center());
    EXPECT_EQ(host.arrived, Arrived {"around"});
}

TEST_F(Click, ArrivesFromTheTopItemOfAZone)
{
    const std::string items[] = {text("words", uriAction("its")),
                                 component("image", uriAction("its")), button(uriAction("its")),
                                 box("vertical", text("words"), uriAction("its"))};
    for (const char* zone : {"header", "hero", "body", "footer"}) {
        for (const std::string& item : items) {
            SCOPED_TRACE(std::string(zone) + " " + item);
            ClickHost host;
            const TestCard card(R"({"type": "bubble", ")" + std::string(zone) + "\": " + item + "}",
                                host.setUp());
            click(*card.root(), card.item({0})->sceneBoundingRect().center());
            EXPECT_EQ(host.arrived, Arrived {"its"});
        }
    }
}

TEST_F(Click, ArrivesWhereverTheHostShowsTheCard)
{
    ClickHost host;
    const TestCard card(
        bubbleWithBody(box("vertical", button(uriAction("its")), R"("paddingAll": "20px",)")),
        host.setUp());
    QGraphicsItem* const item = card.item({0, 0});
    const struct {
        QPointF place;
        double scale;
        double turn;
    } rows[] = {{{0.5, 0.5}, 1, 0},
                {{-311.3, 77.7}, 1, 0},
                {{10, 10}, 1.25, 0},
                {{0, 0}, 2, 30},
                {{0, 0}, 0.3, 0}};
    for (const auto& row : rows) {
        card.root()->setPos(row.place);
        card.root()->setScale(row.scale);
        card.root()->setRotation(row.turn);
        host.arrived.clear();
        CardView view(*card.root());
        const QRectF area = item->boundingRect();
        view.press(item->mapToScene(area.center()));
        view.release(item->mapToScene(area.center() + QPointF(area.width(), 0) * 0.4));
        EXPECT_EQ(host.arrived, Arrived {"its"});
        view.press(item->mapToScene(area.center()));
        view.release(item->mapToScene(area.center() + QPointF(0, area.height() / 2 + 8)));
        EXPECT_EQ(host.arrived, Arrived {"its"}) << "released below it";
    }
}

TEST_F(Click, ArrivesAtTheEdgeOfAnItem)
{
    ClickHost host;
    const TestCard card(bubbleWithBody(box("vertical", button(uriAction("its")))), host.setUp());
    CardView view(*card.root());
    const QRectF area = card.item({0, 0})->sceneBoundingRect();
    const QPointF pixel(1, 1);
    for (const QPointF& corner : {area.topLeft(), area.bottomRight() - pixel}) {
        view.click(corner);
        EXPECT_EQ(host.arrived, Arrived {"its"});
        host.arrived.clear();
    }
    view.press(area.center());
    view.release({area.center().x(), area.bottom() + 4});
    EXPECT_EQ(host.arrived, Arrived {});
}

TEST_F(Click, OutsideTheRoundCornerOfABubbleDoesNotArrive)
{
    ClickHost host;
    const TestCard card(R"({"type": "bubble", "hero": )"
                            + box("vertical", "", R"("height": "60px",)" + uriAction("its")) + "}",
                        host.setUp());
    CardView view(*card.root());
    view.click({1, 1});
    EXPECT_EQ(host.arrived, Arrived {});
    view.click({12, 12});
    EXPECT_EQ(host.arrived, Arrived {"its"});
}

TEST_F(Click, OnAClippedPartGoesToTheVisibleItem)
{
    ClickHost host;
    const TestCard card(bubbleWithBody(box("vertical",
                                           box("vertical", component("image", uriAction("its")),
                                               R"("height": "30px",)")
                                               + "," + box("vertical", "", R"("height": "200px",)"),
                                           uriAction("around"))),
                        host.setUp());
    const QRectF area = card.item({0, 0, 0})->sceneBoundingRect();
    ASSERT_GT(area.height(), 60);
    CardView view(*card.root());
    view.click(area.topLeft() + QPointF(20, 20));
    view.click(area.topLeft() + QPointF(20, 50));
    EXPECT_EQ(host.arrived, (Arrived {"its", "around"}));
}

TEST_F(Click, GoesToAnItemOfTheHostOverTheCard)
{
    ClickHost host;
    const TestCard card(bubbleWithBody(box("vertical", button(uriAction("its")))), host.setUp());
    CardView view(*card.root());
    auto* const cover = view.scene().addRect(card.root()->sceneBoundingRect());
    cover->setBrush(Qt::gray);
    cover->setFlag(QGraphicsItem::ItemIsSelectable);
    view.click(card.item({0, 0})->sceneBoundingRect().center());
    EXPECT_EQ(host.arrived, Arrived {});
    EXPECT_TRUE(cover->isSelected());
}

TEST_F(Click, IsNotAcceptedByItemsWithoutAnActionToDeliver)
{
    for (const std::string& item :
         {box("vertical", "", kSize), box("vertical", "", kSize + appAction("app://a")),
          text("words", appAction("app://a")), component("image"),
          component("image", uriAction("its", "dance")), component("image", appAction("app://a")),
          component("icon", uriAction("its"))}) {
        const TestCard card(bubbleWithBody(box("vertical", item, uriAction("around"))));
        EXPECT_EQ(card.item({0, 0})->acceptedMouseButtons(), Qt::NoButton) << item;
        EXPECT_NE(card.item({0})->acceptedMouseButtons(), Qt::NoButton);
    }
}

TEST_F(Click, DeliversACopyOfTheAction)
{
    ClickHost host;
    host.onAction = [](ST_ACTION& action) { action.uri = "changed"; };
    for (const std::string& item :
         {box("vertical", "", kSize + uriAction("its")), text("words", uriAction("its")),
          component("image", uriAction("its")), button(uriAction("its"))}) {
        host.arrived.clear();
        const TestCard card(bubbleWithBody(box("vertical", item)), host.setUp());
        CardView view(*card.root());
        view.click(card.item({0, 0})->sceneBoundingRect().center());
        view.click(card.item({0, 0})->sceneBoundingRect().center());
        EXPECT_EQ(host.arrived, (Arrived {"its", "its"}));
    }
}

TEST_F(Click, DeliversTheControllerAndTheWholeAction)
{
    struct Received {
        PlixDataController* controller = nullptr;
        ST_ACTION action;
    } received;
    const TestCard card(bubbleWithBody(box("vertical", component("button", R"("action": {
                            "type": "postback", "label": "l", "data": "d", "displayText": "t",
                            "i18nLabels": {"ko": "k"}, "copyText": "c"},)"))),
                        [&](PlixDataController* controller) {
                            Plix_SetClickCallBack(
                                controller,
                                [](PlixDataController* from, ST_ACTION& action, void* to) {
                                    *static_cast<Received*>(to) = {from, action};
                                },
                                &received);
                        });
    click(*card.root(), card.item({0, 0})->sceneBoundingRect().center());
    EXPECT_EQ(received.controller, card.controller());
    EXPECT_EQ(received.action.type, "postback");
    EXPECT_EQ(received.action.label, "l");
    EXPECT_EQ(received.action.data, "d");
    EXPECT_EQ(received.action.displayText, "t");
    EXPECT_EQ(received.action.copyText, "c");
    EXPECT_EQ(received.action.i18nLabels.Get("ko"), "k");
}

TEST_F(Click, UsesTheCurrentCallback)
{
    const TestCard card(bubbleWithBody(box("vertical", "", kSize + uriAction("here"))));
    click(*card.root(), {10, 10});
    ClickHost host;
    host.listenTo(card.controller());
    click(*card.root(), {10, 10});
    EXPECT_EQ(host.arrived, Arrived {"here"});
    Plix_SetClickCallBack(card.controller(), nullptr, nullptr);
    click(*card.root(), {10, 10});
    EXPECT_EQ(host.arrived, Arrived {"here"});
}

TEST_F(Click, ArrivesAtTheHostOfTheClickedCard)
{
    ClickHost firstHost;
    ClickHost secondHost;
    const std::string json = bubbleWithBody(box("vertical", button(uriAction("its"))));
    const TestCard first(json, firstHost.setUp());
    const TestCard second(json, secondHost.setUp());
    second.root()->setPos(0, 20);
    CardView view(*first.root());
    view.add(*second.root());
    view.press({150, 25});
    EXPECT_EQ(view.scene().mouseGrabberItem(), first.item({0, 0}));
    view.release({150, 25});
    view.click(second.item({0, 0})->sceneBoundingRect().center());
    EXPECT_EQ(firstHost.arrived, Arrived {"its"});
    EXPECT_EQ(secondHost.arrived, Arrived {"its"});
}

} // namespace
} // namespace plix::test
