// Every kind of item under the mouse: what arrives at the host, what the mouse
// looks like, and what the host is told when it asks.
#include "ClickHost.h"

#include "support/Mouse.h"
#include "support/PlixTest.h"

#include <ostream>
#include <tuple>

namespace plix::test {
namespace {

constexpr char kAround[] = "around";
constexpr char kApp[] = "app://a";
constexpr char kSize[] = R"("width": "60px", "height": "40px",)";
constexpr char kSmall[] = R"("size": "xxs", "flex": 0,)";

// What is known of an item with a box around it.
struct Outcome {
    const char* arrives; // empty: nothing
    bool hand;
    bool hasAction;
};

struct Target {
    const char* name;
    std::string item;
    std::vector<int> path; // from the item to what is clicked
    Outcome inPlainBox;
    Outcome inBoxWithAction;
};

constexpr Outcome kNothing {"", false, false};
constexpr Outcome kTheBoxs {kAround, true, false};
// Where the box's click would tell of an action that is the item's.
constexpr Outcome kTheBoxsForOneOfItsOwn {kAround, true, true};

constexpr Outcome its(const char* uri)
{
    return {uri, true, true};
}

std::string imageOf(const std::string& members)
{
    return component("image", kSmall + members);
}

std::string mention(const char* who, const std::string& members = {})
{
    return text("<m " + std::string(who) + R"(=\"-7\">@AnnLee</m>)", R"("flex": 0,)" + members);
}

std::string spans(const std::string& members)
{
    return component("text", members + R"("contents": [{"type": "span", "text": "one "},
        {"type": "span", "text": "two", "weight": "bold"}],)");
}

const std::vector<Target>& targets()
{
    static const std::string app = appAction(kApp);
    static const std::string appBox = std::string(kSize) + app;
    static const std::vector<Target> rows = {
        {"Box", box("vertical", "", kSize), {}, kNothing, kTheBoxs},
        {"BoxInABox", box("vertical", box("vertical", "", kSize)), {0}, kNothing, kTheBoxs},
        {"BoxWithAction",
         box("vertical", "", kSize + uriAction("its")),
         {},
         its("its"),
         its("its")},
        {"BoxWithUnknownAction",
         box("vertical", "", kSize + uriAction("its", "dance")),
         {},
         its("its"),
         its("its")},
        {"BoxForApps", box("vertical", "", appBox), {}, kNothing, kTheBoxs},
        {"TextInABoxForApps", box("vertical", text("words"), appBox), {0}, kNothing, kTheBoxs},
        {"TextWithActionInABoxForApps",
         box("vertical", text("words", uriAction("its")), appBox),
         {0},
         its("its"),
         its("its")},
        {"ButtonWithoutActionInABoxForApps",
         box("vertical", button(""), appBox),
         {0},
         kNothing,
         // The button keeps the click to itself; the hand is the box's.
         {"", true, false}},
        {"Text", text("words"), {}, kNothing, kTheBoxs},
        {"TextInABox", box("vertical", text("words")), {0}, kNothing, kTheBoxs},
        {"TextWithAction", text("words", uriAction("its")), {}, its("its"), its("its")},
        {"TextWithActionInABox",
         box("vertical", text("words", uriAction("its"))),
         {0},
         its("its"),
         its("its")},
        {"TextWithUnknownAction",
         text("words", uriAction("its", "dance")),
         {},
         kNothing,
         kTheBoxsForOneOfItsOwn},
        {"TextForApps", text("words", app), {}, kNothing, kTheBoxsForOneOfItsOwn},
        {"Spans", spans(""), {}, kNothing, kTheBoxs},
        {"SpansWithAction", spans(uriAction("its")), {}, its("its"), its("its")},
        {"Mention", mention("user"), {}, {"user -7", true, false}, kTheBoxs},
        {"MentionOfABot", mention("bot"), {}, {"bot -7", true, false}, kTheBoxs},
        {"MentionInATextWithAction", mention("user", uriAction("its")), {}, its("its"), its("its")},
        {"Image", imageOf(""), {}, kNothing, kTheBoxs},
        {"ImageWithAction", imageOf(uriAction("its")), {}, its("its"), its("its")},
        {"ImageWithUnknownAction", imageOf(uriAction("its", "dance")), {}, kNothing, kTheBoxs},
        {"ImageForApps", imageOf(app), {}, kNothing, kTheBoxs},
        {"Icon", component("icon"), {}, kNothing, kTheBoxs},
        {"IconWithAction", component("icon", uriAction("its")), {}, kNothing, kTheBoxs},
        {"Button", button(""), {}, {"", true, false}, {"", true, false}},
        {"ButtonWithAction", button(uriAction("its")), {}, its("its"), its("its")},
        {"ButtonWithUnknownAction", button(uriAction("its", "dance")), {}, its("its"), its("its")},
        {"ButtonForApps", button(app), {}, kNothing, {"", true, false}},
        {"Separator", component("separator", uriAction("its")), {}, kNothing, kTheBoxs},
        {"Spacer", component("spacer", uriAction("its")), {}, kNothing, kTheBoxs},
        {"Filler", component("filler", uriAction("its")), {}, kNothing, kTheBoxs},
    };
    return rows;
}

struct Row {
    std::string name;
    std::string card;
    std::vector<int> path;
    Outcome outcome;

    friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

std::vector<Row> rows()
{
    std::vector<Row> all;
    for (const Target& target : targets()) {
        std::vector<int> path = {0, 0};
        path.insert(path.end(), target.path.begin(), target.path.end());
        const auto add = [&](const char* where, const std::string& action, const Outcome& outcome) {
            const std::string members = R"("height": "100px", "paddingAll": "20px",)" + action;
            all.push_back({target.name + std::string(where),
                           bubbleWithBody(box("horizontal", target.item, members)), path, outcome});
        };
        add("", "", target.inPlainBox);
        add("InABoxWithAction", uriAction(kAround), target.inBoxWithAction);
    }
    return all;
}

// What is done with the mouse, and how many clicks on the item that makes.
struct Gesture {
    const char* name;
    void (*make)(CardView& view, const QPointF& one, const QPointF& other);
    std::size_t clicks;

    friend std::ostream& operator<<(std::ostream& out, const Gesture& row)
    {
        return out << row.name;
    }
};

constexpr Gesture kGestures[] = {
    {"Click", [](CardView& view, const QPointF& one, const QPointF&) { view.click(one); }, 1},
    {"TwoClicks",
     [](CardView& view, const QPointF& one, const QPointF& other) {
         view.click(one);
         view.click(other);
     },
     2},
    {"DoubleClick",
     [](CardView& view, const QPointF& one, const QPointF&) { view.doubleClick(one); }, 2},
    {"RightClick",
     [](CardView& view, const QPointF& one, const QPointF&) { view.click(one, Qt::RightButton); },
     0},
    {"RightDoubleClick",
     [](CardView& view, const QPointF& one, const QPointF&) {
         view.doubleClick(one, Qt::RightButton);
     },
     0},
    {"MiddleClick",
     [](CardView& view, const QPointF& one, const QPointF&) { view.click(one, Qt::MiddleButton); },
     0},
    {"DragWithin",
     [](CardView& view, const QPointF& one, const QPointF& other) {
         view.press(one);
         view.release(other);
     },
     1},
    {"DragOut",
     [](CardView& view, const QPointF& one, const QPointF&) {
         view.press(one);
         view.release(view.nowhere());
     },
     0},
    {"DragIn",
     [](CardView& view, const QPointF& one, const QPointF&) {
         view.press(view.nowhere());
         view.release(one);
     },
     0},
    {"DragOutAndBack",
     [](CardView& view, const QPointF& one, const QPointF& other) {
         view.press(one);
         view.moveTo(view.nowhere());
         view.release(other);
     },
     1},
    {"ClickWhileTheRightButtonIsDown",
     [](CardView& view, const QPointF& one, const QPointF&) {
         view.press(one, Qt::RightButton);
         view.click(one);
         view.release(one, Qt::RightButton);
     },
     1},
    {"RightClickWhileTheLeftButtonIsDown",
     [](CardView& view, const QPointF& one, const QPointF&) {
         view.press(one);
         view.click(one, Qt::RightButton);
         view.release(one);
     },
     1},
    {"RightClickOnTheWayOut",
     [](CardView& view, const QPointF& one, const QPointF&) {
         view.press(one);
         view.click(one, Qt::RightButton);
         view.release(view.nowhere());
     },
     0},
    {"LeftThenRightDownLeftThenRightUp",
     [](CardView& view, const QPointF& one, const QPointF&) {
         view.press(one);
         view.press(one, Qt::RightButton);
         view.release(one);
         view.release(one, Qt::RightButton);
     },
     1},
    {"RightThenLeftDownRightThenLeftUp",
     [](CardView& view, const QPointF& one, const QPointF&) {
         view.press(one, Qt::RightButton);
         view.press(one);
         view.release(one, Qt::RightButton);
         view.release(one);
     },
     1},
};

// ----- What arrives

// `words`, in this order, for the property of a test.
std::string joined(const Arrived& words)
{
    std::string all;
    for (const std::string& word : words)
        all += (all.empty() ? "" : ", ") + word;
    return all;
}

class ShownItem : public PlixTest {
protected:
    // What is for apps only shows the host's wording, and nothing without one.
    ShownItem()
    {
        Plix_SetMultiLangGetCallback([](const char*) { return std::string("On your phone"); });
    }
};

class ClickMatrix : public ShownItem,
                    public testing::WithParamInterface<std::tuple<Row, Gesture>> { };

TEST_P(ClickMatrix, ArrivesOnceForEachClick)
{
    const auto& [row, gesture] = GetParam();
    ClickHost host;
    const TestCard card(row.card, host.setUp());
    const QRectF area = card.item(row.path)->sceneBoundingRect();
    ASSERT_FALSE(area.isEmpty());
    const QPointF other = area.center() + QPointF(area.width(), area.height()) * 0.2;
    CardView view(*card.root());

    gesture.make(view, area.center(), other);

    const std::string arrives = row.outcome.arrives;
    EXPECT_EQ(host.arrived, Arrived(arrives.empty() ? 0 : gesture.clicks, arrives));
    RecordProperty("arrived", joined(host.arrived));
    EXPECT_EQ(view.scene().mouseGrabberItem(), nullptr);

    host.arrived.clear();
    view.click(area.center());
    EXPECT_EQ(host.arrived, Arrived(arrives.empty() ? 0 : 1, arrives)) << "the click after it";
}

INSTANTIATE_TEST_SUITE_P(Items, ClickMatrix,
                         testing::Combine(testing::ValuesIn(rows()), testing::ValuesIn(kGestures)),
                         [](const auto& row) {
                             return std::get<0>(row.param).name + "_" + std::get<1>(row.param).name;
                         });

// ----- What is seen, and what is told before

class Clickable : public ShownItem, public testing::WithParamInterface<Row> { };

TEST_P(Clickable, ShowsAHandInTheView)
{
    const TestCard card(GetParam().card, ClickHost().setUp());
    CardView view(*card.root());
    const Qt::CursorShape elsewhere = view.cursor();
    view.moveTo(card.item(GetParam().path)->sceneBoundingRect().center());
    EXPECT_EQ(view.cursor(), GetParam().outcome.hand ? Qt::PointingHandCursor : elsewhere);
    view.moveTo(view.nowhere());
    EXPECT_EQ(view.cursor(), elsewhere);
}

TEST_P(Clickable, IsToldToAHostThatAsks)
{
    const TestCard card(GetParam().card, ClickHost().setUp());
    EXPECT_EQ(Plix_HasAction(card.item(GetParam().path)), GetParam().outcome.hasAction);
    EXPECT_FALSE(Plix_HasAction(card.root())) << "a bubble has none";
}

INSTANTIATE_TEST_SUITE_P(Items, Clickable, testing::ValuesIn(rows()),
                         [](const auto& row) { return row.param.name; });

// ----- From one item to another

// A column of one of each, in a box with an action.
std::string column()
{
    const std::string contents[] = {
        text("words"),
        text("words", uriAction("text")),
        imageOf(""),
        imageOf(uriAction("image")),
        button(uriAction("button")),
        button(appAction(kApp)),
        box("vertical", "", kSize),
        box("vertical", "", kSize + uriAction("inner")),
        box("vertical", "", kSize + appAction(kApp)),
    };
    std::string all;
    for (const std::string& item : contents)
        all += (all.empty() ? "" : ",") + item;
    return R"({"type": "bubble", "hero": )"
        + box("vertical", all, R"("paddingAll": "20px",)" + uriAction("box")) + "}";
}

// The places in it: their numbers among the children, or the box's own padding.
enum Place {
    Words,
    TextWithAction,
    Image,
    ImageWithAction,
    Button,
    ButtonForApps,
    InnerBox,
    InnerBoxWithAction,
    InnerBoxForApps,
    Background
};

struct Drag {
    const char* name;
    Place from;
    Place to;
    const char* arrives;

    friend std::ostream& operator<<(std::ostream& out, const Drag& row) { return out << row.name; }
};

class DragBetweenItems : public PlixTest, public testing::WithParamInterface<Drag> {
protected:
    static QPointF at(const TestCard& card, Place place)
    {
        return place == Background ? QPointF(10, 10)
                                   : card.item({0, place})->sceneBoundingRect().center();
    }
};

TEST_P(DragBetweenItems, IsAClickOnWhatTookThePressUnlessItLeftThat)
{
    const Drag& drag = GetParam();
    ClickHost host;
    const TestCard card(column(), host.setUp());
    CardView view(*card.root());
    view.press(at(card, drag.from));
    view.release(at(card, drag.to));
    const std::string arrives = drag.arrives;
    EXPECT_EQ(host.arrived, arrives.empty() ? Arrived {} : Arrived {arrives});
    RecordProperty("arrived", joined(host.arrived));
    EXPECT_EQ(view.scene().mouseGrabberItem(), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Column, DragBetweenItems,
    testing::Values(Drag {"BackgroundToBackground", Background, Background, "box"},
                    Drag {"BackgroundToWords", Background, Words, "box"},
                    Drag {"BackgroundToTextWithAction", Background, TextWithAction, "box"},
                    Drag {"BackgroundToImageWithAction", Background, ImageWithAction, "box"},
                    Drag {"BackgroundToButton", Background, Button, "box"},
                    Drag {"BackgroundToButtonForApps", Background, ButtonForApps, "box"},
                    Drag {"BackgroundToInnerBoxWithAction", Background, InnerBoxWithAction, "box"},
                    Drag {"BackgroundToInnerBoxForApps", Background, InnerBoxForApps, "box"},
                    Drag {"WordsToBackground", Words, Background, "box"},
                    Drag {"WordsToTextWithAction", Words, TextWithAction, "box"},
                    Drag {"WordsToButton", Words, Button, "box"},
                    Drag {"ImageToWords", Image, Words, "box"},
                    Drag {"InnerBoxToBackground", InnerBox, Background, "box"},
                    Drag {"InnerBoxForAppsToBackground", InnerBoxForApps, Background, "box"},
                    Drag {"TextWithActionToBackground", TextWithAction, Background, ""},
                    Drag {"TextWithActionToWords", TextWithAction, Words, ""},
                    Drag {"ImageWithActionToBackground", ImageWithAction, Background, ""},
                    Drag {"ImageWithActionToTextWithAction", ImageWithAction, TextWithAction, ""},
                    Drag {"ButtonToBackground", Button, Background, ""},
                    Drag {"ButtonToButtonForApps", Button, ButtonForApps, ""},
                    Drag {"ButtonForAppsToBackground", ButtonForApps, Background, ""},
                    Drag {"ButtonForAppsToButton", ButtonForApps, Button, ""},
                    Drag {"InnerBoxWithActionToBackground", InnerBoxWithAction, Background, ""},
                    Drag {"InnerBoxWithActionToInnerBox", InnerBoxWithAction, InnerBox, ""}),
    [](const auto& row) { return std::string(row.param.name); });

// ----- For apps, when the host says that it can do what they can

struct AppItem {
    const char* name;
    std::string item;

    friend std::ostream& operator<<(std::ostream& out, const AppItem& row)
    {
        return out << row.name;
    }
};

class ActionForApps : public PlixTest, public testing::WithParamInterface<AppItem> { };

TEST_P(ActionForApps, IsOrdinaryForAHostThatChecksNothing)
{
    ClickHost host;
    const TestCard card(bubbleWithBody(box("horizontal", GetParam().item, uriAction(kAround))),
                        [&](PlixDataController* controller) {
                            host.listenTo(controller);
                            PlixDisplayParam param;
                            param.mobileOnlyCheck = false;
                            Plix_SetDisplayParam(controller, param);
                        });
    const QGraphicsItem* const item = card.item({0, 0});
    CardView view(*card.root());
    view.click(item->sceneBoundingRect().center());
    EXPECT_EQ(host.arrived, Arrived {kApp});
    EXPECT_EQ(view.cursor(), Qt::PointingHandCursor);
    EXPECT_TRUE(Plix_HasAction(card.item({0, 0})));
}

INSTANTIATE_TEST_SUITE_P(Items, ActionForApps,
                         testing::Values(AppItem {"Box",
                                                  box("vertical", "", kSize + appAction(kApp))},
                                         AppItem {"Text", text("words", appAction(kApp))},
                                         AppItem {"Image", imageOf(appAction(kApp))},
                                         AppItem {"Button", button(appAction(kApp))}),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
} // namespace plix::test
