// Who takes a click, and what reaches the host.
#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "ui/PlixBoxUI.h"
#include "ui/text/PlixTextUI.h"

#include <QCursor>

#include <functional>

namespace plix::test {
namespace {

// A host that notes the actions it is told.
class Clicks {
public:
    std::function<void(PlixDataController*)> setUp()
    {
        return [this](PlixDataController* controller) {
            Plix_SetClickCallBack(controller, &Clicks::note, this);
        };
    }

    std::vector<std::string> uris;
    std::function<void(ST_ACTION&)> onClick;

private:
    static void note(PlixDataController*, ST_ACTION& action, void* userData)
    {
        auto* self = static_cast<Clicks*>(userData);
        self->uris.push_back(action.uri);
        if (self->onClick)
            self->onClick(action);
    }
};

std::string action(const std::string& uri, const std::string& type = "uri")
{
    return R"("action": {"type": ")" + type + R"(", "uri": ")" + uri + R"("},)";
}

constexpr char kAppOnly[] = R"("action": {"type": "uri", "appUri": "app://a"},)";
constexpr char kSize[] = R"("width": "100px", "height": "60px",)";

using Uris = std::vector<std::string>;
using Click = PlixTest;

TEST_F(Click, OnABoxWithAnActionReachesTheHostOnce)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", "", kSize + action("here"))),
                        clicks.setUp());
    click(*card.root(), {10, 10});
    EXPECT_EQ(clicks.uris, Uris {"here"});
    click(*card.root(), {10, 10});
    EXPECT_EQ(clicks.uris.size(), 2u);
}

TEST_F(Click, BesideABoxReachesNobody)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", "", kSize + action("here"))),
                        clicks.setUp());
    click(*card.root(), {150, 10});
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, ReachesTheHostForTheLeftButtonOnly)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", "", kSize + action("here"))),
                        clicks.setUp());
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        click(*card.root(), {10, 10}, button);
        releaseOn(*card.item({0}), button);
    }
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, OnABoxWithoutAnActionGoesToTheBoxAroundIt)
{
    Clicks clicks;
    const TestCard card(
        bubbleWithBody(
            box("vertical", box("horizontal", box("vertical", "", kSize)), action("around"))),
        clicks.setUp());
    click(*card.root(), {30, 30});
    EXPECT_EQ(clicks.uris, Uris {"around"});
    releaseOn(*card.item({0, 0, 0}));
    EXPECT_EQ(clicks.uris, (Uris {"around", "around"})) << "through two boxes";
}

TEST_F(Click, IsTakenByTheInnermostBoxWithAnAction)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", box("vertical", "", kSize + action("inner")),
                                           action("outer"))),
                        clicks.setUp());
    click(*card.root(), {30, 30});
    EXPECT_EQ(clicks.uris, Uris {"inner"});
}

TEST_F(Click, OnABoxWithoutAnyActionGoesNowhere)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", box("vertical", "", kSize))),
                        clicks.setUp());
    click(*card.root(), {30, 30});
    releaseOn(*card.item({0, 0}));
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, OnATextWithoutAnActionGoesToTheBoxAroundIt)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", text("words"), action("around"))),
                        clicks.setUp());
    click(*card.root(), card.item({0, 0})->sceneBoundingRect().center());
    EXPECT_EQ(clicks.uris, Uris {"around"});
}

TEST_F(Click, ReleasedOnATextWithoutAnActionGoesToTheBoxAroundIt)
{
    Clicks clicks;
    // The box passes on as well: it has no action either.
    const TestCard card(
        bubbleWithBody(box("vertical", box("vertical", component("separator") + "," + text("a")),
                           R"("spacing": "md",)")),
        clicks.setUp());
    releaseOn(*card.item({0, 0, 1}));
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, ReleasedOnATextWithAnActionReachesTheHost)
{
    Clicks clicks;
    const TestCard card(
        bubbleWithBody(box("vertical", text("words", action("text")), action("around"))),
        clicks.setUp());
    releaseOn(*card.item({0, 0}), Qt::RightButton);
    EXPECT_TRUE(clicks.uris.empty());
    releaseOn(*card.item({0, 0}));
    EXPECT_EQ(clicks.uris, Uris {"text"}) << "not the box's on top of it";
}

TEST_F(Click, OnATextWithAnActionOfAnUnknownTypeDoesNotReachTheHost)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", text("words", action("text", "dance")))),
                        clicks.setUp());
    releaseOn(*card.item({0, 0}));
    click(*card.root(), card.item({0, 0})->sceneBoundingRect().center());
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, OnAClickableTextWithAnActionOfAnUnknownTypeDoesNotReachTheHost)
{
    Clicks clicks;
    // The box makes all its children clickable.
    const TestCard card(
        bubbleWithBody(box("vertical", text("words", action("text", "dance")), action("around"))),
        clicks.setUp());
    releaseOn(*card.item({0, 0}));
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, OnABoxWithAnActionOfAnUnknownTypeReachesTheHost)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", "", kSize + action("here", "dance"))),
                        clicks.setUp());
    click(*card.root(), {10, 10});
    EXPECT_EQ(clicks.uris, Uris {"here"});
}

TEST_F(Click, OnABoxForMobileAppsGoesNowhere)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", "", std::string(kSize) + kAppOnly)),
                        clicks.setUp());
    EXPECT_EQ(card.item({0})->acceptedMouseButtons(), Qt::NoButton);
    EXPECT_FALSE(card.item({0})->hasCursor());
    click(*card.root(), {10, 10});
    releaseOn(*card.item({0}));
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, OnABoxForMobileAppsIsNotPassedOn)
{
    Clicks clicks;
    const TestCard card(
        bubbleWithBody(
            box("vertical", box("vertical", "", std::string(kSize) + kAppOnly), action("around"))),
        clicks.setUp());
    releaseOn(*card.item({0, 0}));
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, ReachesTheHostForMobileAppsWhenTheHostSaysSo)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", "", std::string(kSize) + kAppOnly)),
                        [&](PlixDataController* controller) {
                            clicks.setUp()(controller);
                            PlixDisplayParam param;
                            param.mobileOnlyCheck = false;
                            Plix_SetDisplayParam(controller, param);
                        });
    click(*card.root(), {10, 10});
    EXPECT_EQ(clicks.uris.size(), 1u);
}

TEST_F(Click, OnATextForMobileAppsGoesNowhere)
{
    Clicks clicks;
    const TestCard card(bubbleWithBody(box("vertical", text("words", kAppOnly), action("around"))),
                        clicks.setUp());
    releaseOn(*card.item({0, 0}));
    EXPECT_TRUE(clicks.uris.empty());
}

TEST_F(Click, DeliversACopyOfTheAction)
{
    Clicks clicks;
    clicks.onClick = [](ST_ACTION& received) { received.uri = "changed"; };
    const TestCard card(bubbleWithBody(box("vertical", "", kSize + action("here"))),
                        clicks.setUp());
    click(*card.root(), {10, 10});
    click(*card.root(), {10, 10});
    EXPECT_EQ(clicks.uris, (Uris {"here", "here"}));
}

TEST_F(Click, UsesTheCallbackOfTheMoment)
{
    const TestCard card(bubbleWithBody(box("vertical", "", kSize + action("here"))));
    click(*card.root(), {10, 10});
    Clicks clicks;
    clicks.setUp()(card.controller());
    click(*card.root(), {10, 10});
    EXPECT_EQ(clicks.uris, Uris {"here"});
    Plix_SetClickCallBack(card.controller(), nullptr, nullptr);
    click(*card.root(), {10, 10});
    EXPECT_EQ(clicks.uris.size(), 1u);
}

TEST_F(Click, MayDeleteTheCard)
{
    Clicks clicks;
    PlixDataController* controller = Plix_CreateController();
    clicks.setUp()(controller);
    Plix_InitData(controller, bubbleWithBody(box("vertical", "", kSize + action("here"))));
    QGraphicsItem* root = Plix_CreateQGraphicsItem(controller);
    clicks.onClick = [&](ST_ACTION&) { Plix_Free(controller); };
    releaseOn(*root->childItems()[0]);
    EXPECT_EQ(clicks.uris, Uris {"here"});
    delete root;
}

TEST_F(Click, IsAnnouncedByTheCursor)
{
    const TestCard card(bubbleWithBody(box("vertical",
                                           box("vertical", text("inner"), action("here")) + ","
                                               + text("text", action("text")) + "," + text("plain")
                                               + "," + box("vertical", ""))));
    EXPECT_EQ(card.item({0, 0})->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(card.item({0, 0, 0})->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_EQ(card.item({0, 1})->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_FALSE(card.item({0, 2})->hasCursor());
    EXPECT_FALSE(card.item({0, 3})->hasCursor());
    EXPECT_EQ(card.item({0, 3})->acceptedMouseButtons(), Qt::NoButton);
}

TEST_F(Click, PressesAreLeftToTheItemBelowAClickableText)
{
    const TestCard card(bubbleWithBody(box("vertical", text("words", action("text")))));
    EXPECT_FALSE(pressOn(*card.item({0, 0})));
}

} // namespace
} // namespace plix::test
