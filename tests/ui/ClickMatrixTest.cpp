// Every kind of item under the mouse: which clicks arrive at the host, which cursor is
// shown, and what Plix_HasAction() returns.
#include "ClickHost.h"

#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <ostream>
#include <tuple>

namespace plix::test {
namespace {

constexpr char kAround[] = "around";
constexpr char kApp[] = "app://a";
constexpr char kFixedSize[] = R"("width": "60px", "height": "40px",)";
constexpr char kSmall[] = R"("size": "xxs", "flex": 0,)";

// The expectations for an item in a box.
struct Outcome {
    const char* arrives; // with a click; empty for nothing
    Qt::CursorShape cursor;
    bool hasAction;
};

constexpr Qt::CursorShape kNone = Qt::ArrowCursor;
constexpr Qt::CursorShape kHand = Qt::PointingHandCursor;

struct Target {
    const char* name;
    std::string item;
    std::vector<int> path; // from the item to what is clicked
    Outcome inPlainBox;
    Outcome inBoxWithAction;
};

constexpr Outcome kNothing {"", kNone, false};
// A text without an action can be selected.
constexpr Outcome kSelects {"", Qt::IBeamCursor, false};
constexpr Outcome kClicksBox {kAround, kHand, false};
// The item has an action that no click delivers; a click on it is one on the box.
constexpr Outcome kClicksBoxDespiteItsAction {kAround, kHand, true};

constexpr Outcome clicksItem(const char* uri)
{
    return {uri, kHand, true};
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
    static const std::string appBox = std::string(kFixedSize) + app;
    static const std::vector<Target> rows = {
        {"Box", box("vertical", "", kFixedSize), {}, kNothing, kClicksBox},
        {"BoxInABox", box("vertical", box("vertical", "", kFixedSize)), {0}, kNothing, kClicksBox},
        {"BoxWithAction",
         box("vertical", "", kFixedSize + uriAction("its")),
         {},
         clicksItem("its"),
         clicksItem("its")},
        {"BoxWithUnknownAction",
         box("vertical", "", kFixedSize + uriAction("its", "dance")),
         {},
         clicksItem("its"),
         clicksItem("its")},
        {"BoxForApps", box("vertical", "", appBox), {}, kNothing, kClicksBox},
        {"TextInABoxForApps", box("vertical", text("words"), appBox), {0}, kNothing, kClicksBox},
        {"TextWithActionInABoxForApps",
         box("vertical", text("words", uriAction("its")), appBox),
         {0},
         clicksItem("its"),
         clicksItem("its")},
        {"ButtonWithoutActionInABoxForApps",
         box("vertical", button(""), appBox),
         {0},
         kNothing,
         // The button accepts the click and ignores it; the cursor is the box's.
         {"", kHand, false}},
        {"Text", text("words"), {}, kSelects, kClicksBox},
        {"TextInABox", box("vertical", text("words")), {0}, kSelects, kClicksBox},
        {"TextWithAction",
         text("words", uriAction("its")),
         {},
         clicksItem("its"),
         clicksItem("its")},
        {"TextWithActionInABox",
         box("vertical", text("words", uriAction("its"))),
         {0},
         clicksItem("its"),
         clicksItem("its")},
        {"TextWithUnknownAction",
         text("words", uriAction("its", "dance")),
         {},
         kSelects,
         kClicksBoxDespiteItsAction},
        {"TextForApps", text("words", app), {}, kNothing, kClicksBoxDespiteItsAction},
        {"Spans", spans(""), {}, kSelects, kClicksBox},
        {"SpansWithAction", spans(uriAction("its")), {}, clicksItem("its"), clicksItem("its")},
        {"Mention", mention("user"), {}, {"user -7", kHand, false}, kClicksBox},
        {"MentionOfABot", mention("bot"), {}, {"bot -7", kHand, false}, kClicksBox},
        {"MentionInATextWithAction",
         mention("user", uriAction("its")),
         {},
         clicksItem("its"),
         clicksItem("its")},
        {"Image", imageOf(""), {}, kNothing, kClicksBox},
        {"ImageWithAction", imageOf(uriAction("its")), {}, clicksItem("its"), clicksItem("its")},
        {"ImageWithUnknownAction", imageOf(uriAction("its", "dance")), {}, kNothing, kClicksBox},
        {"ImageForApps", imageOf(app), {}, kNothing, kClicksBox},
        {"Icon", component("icon"), {}, kNothing, kClicksBox},
        {"IconWithAction", component("icon", uriAction("its")), {}, kNothing, kClicksBox},
        {"Button", button(""), {}, {"", kHand, false}, {"", kHand, false}},
        {"ButtonWithAction", button(uriAction("its")), {}, clicksItem("its"), clicksItem("its")},
        {"ButtonWithUnknownAction",
         button(uriAction("its", "dance")),
         {},
         clicksItem("its"),
         clicksItem("its")},
        {"ButtonForApps", button(app), {}, kNothing, {"", kHand, false}},
        {"Separator", component("separator", uriAction("its")), {}, kNothing, kClicksBox},
        {"Spacer", component("spacer", uriAction("its")), {}, kNothing, kClicksBox},
        {"Filler", component("filler", uriAction("its")), {}, kNothing, kClicksBox},
    };
    return rows;
}

struct ClickRow {
    std::string name;
    std::string card;
    std::vector<int> path;
    Outcome outcome;

    friend std::ostream& operator<<(std::ostream& out, const ClickRow& row)
    {
        return out << row.name;
    }
};

std::vector<ClickRow> rows()
{
    std::vector<ClickRow> all;
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

// A gesture with the mouse, and how many clicks on the item it makes.
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

// All strings in one, for the property of a test.
std::string joined(const Arrived& words)
{
    std::string all;
    for (const std::string& word : words)
        all += (all.empty() ? "" : ", ") + word;
    return all;
}

class ShownItem : public PlixTest {
protected:
    // Items for apps only show the host's wording, so they need one to be visible.
    ShownItem()
    {
        Plix_SetMultiLangGetCallback([](const char*) { return std::string("On your phone"); });
    }
};

class ClickMatrix : public ShownItem,
                    public testing::WithParamInterface<std::tuple<ClickRow, Gesture>> { };

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

// ----- The cursor, and Plix_HasAction()

class Clickable : public ShownItem, public testing::WithParamInterface<ClickRow> { };

TEST_P(Clickable, ShowsItsCursorInTheView)
{
    const TestCard card(GetParam().card, ClickHost().setUp());
    CardView view(*card.root());
    const Qt::CursorShape elsewhere = view.cursor();
    EXPECT_EQ(elsewhere, kNone);
    view.moveTo(card.item(GetParam().path)->sceneBoundingRect().center());
    EXPECT_EQ(view.cursor(), GetParam().outcome.cursor);
    view.moveTo(view.nowhere());
    EXPECT_EQ(view.cursor(), elsewhere);
}

TEST_P(Clickable, IsReportedByHasAction)
{
    const TestCard card(GetParam().card, ClickHost().setUp());
    EXPECT_EQ(Plix_HasAction(card.item(GetParam().path)), GetParam().outcome.hasAction);
    EXPECT_FALSE(Plix_HasAction(card.root())) << "a bubble has no action";
}

INSTANTIATE_TEST_SUITE_P(Items, Clickable, testing::ValuesIn(rows()), RowName());

// ----- From one item to another

// A column with one item of each kind, in a box with an action.
std::string column()
{
    const std::string contents[] = {
        text("words"),
        text("words", uriAction("text")),
        imageOf(""),
        imageOf(uriAction("image")),
        button(uriAction("button")),
        button(appAction(kApp)),
        box("vertical", "", kFixedSize),
        box("vertical", "", kFixedSize + uriAction("inner")),
        box("vertical", "", kFixedSize + appAction(kApp)),
    };
    std::string all;
    for (const std::string& item : contents)
        all += (all.empty() ? "" : ",") + item;
    return R"({"type": "bubble", "hero": )"
        + box("vertical", all, R"("paddingAll": "20px",)" + uriAction("box")) + "}";
}

// The items of the column by their indices, and the padding of the box.
enum ColumnPart {
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
    ColumnPart from;
    ColumnPart to;
    const char* arrives;

    friend std::ostream& operator<<(std::ostream& out, const Drag& row) { return out << row.name; }
};

class DragBetweenItems : public PlixTest, public testing::WithParamInterface<Drag> {
protected:
    static QPointF at(const TestCard& card, ColumnPart part)
    {
        return part == Background ? QPointF(10, 10)
                                  : card.item({0, part})->sceneBoundingRect().center();
    }
};

TEST_P(DragBetweenItems, IsAClickOnThePressedItemIfItEndsThere)
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
    RowName());

// ----- Actions for apps only, with a host that supports them

struct AppItem {
    const char* name;
    std::string item;

    friend std::ostream& operator<<(std::ostream& out, const AppItem& row)
    {
        return out << row.name;
    }
};

class ActionForApps : public PlixTest, public testing::WithParamInterface<AppItem> { };

TEST_P(ActionForApps, IsOrdinaryWithoutTheMobileCheck)
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

INSTANTIATE_TEST_SUITE_P(
    Items, ActionForApps,
    testing::Values(AppItem {"Box", box("vertical", "", kFixedSize + appAction(kApp))},
                    AppItem {"Text", text("words", appAction(kApp))},
                    AppItem {"Image", imageOf(appAction(kApp))},
                    AppItem {"Button", button(appAction(kApp))}),
    RowName());

} // namespace
} // namespace plix::test
