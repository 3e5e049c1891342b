// A host may do anything in a callback: delete the card, free its controller, build other
// cards, run an event loop, throw.
#include "CardTree.h"
#include "ClickHost.h"

#include "support/Mouse.h"
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixFocusStop.h"

#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>

#include <QEventLoop>
#include <QPointer>
#include <QTimer>

#include <ostream>
#include <stdexcept>
#include <tuple>

namespace plix::test {
namespace {

constexpr char kSize[] = R"("width": "100px", "height": "40px",)";

// A card with one of each kind of item that reports clicks.
std::string cardOfAll()
{
    const std::string contents[] = {box("vertical", "", kSize + uriAction("box")),
                                    text("words", uriAction("text")),
                                    component("image", R"("size": "xxs",)" + uriAction("image")),
                                    button(uriAction("button")),
                                    text(R"(<m user=\"7\">@AnnLee</m>)"),
                                    text(R"(<m bot=\"7\">@Bot</m>)")};
    std::string all;
    for (const std::string& item : contents)
        all += (all.empty() ? "" : ",") + item;
    return bubbleWithBody(box("vertical", all));
}

// A card of a host that expects others to delete its item.
class HeldCard {
public:
    HeldCard(ClickHost& host, const std::string& json)
        : controller_(Plix_CreateController())
    {
        host.listenTo(controller_);
        Plix_InitData(controller_, json);
    }

    ~HeldCard()
    {
        deleteItem();
        free();
    }

    HeldCard(const HeldCard&) = delete;
    HeldCard& operator=(const HeldCard&) = delete;

    // Builds the item and deletes the one of the last build.
    QGraphicsItem* build()
    {
        // A callback may build the same card meanwhile.
        QGraphicsItem* const item = Plix_CreateQGraphicsItem(controller_);
        deleteItem();
        root_ = item ? item->toGraphicsObject() : nullptr;
        return root_;
    }

    PlixDataController* controller() const { return controller_; }
    QGraphicsObject* root() const { return root_; }

    QPointF centerOf(int child) const
    {
        return root_->childItems().at(0)->childItems().at(child)->sceneBoundingRect().center();
    }

    void deleteItem() { delete root_; }
    void free() { Plix_Free(std::exchange(controller_, nullptr)); }

private:
    PlixDataController* controller_;
    QPointer<QGraphicsObject> root_;
};

// ----- In the callback of a click

// All that a callback may use.
struct HostObjects {
    ClickHost& host;
    HeldCard& card;
    HeldCard& other; // shown in the same view
    CardView& view;
    QPointF clicked;
};

// Runs `body` in a new event loop, like a dialog.
void inEventLoop(const std::function<void()>& body)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        body();
        loop.quit();
    });
    loop.exec();
}

struct HostAction {
    const char* name;
    void (*perform)(HostObjects& objects);
    // What other clicks arrive, which are part of the action. "again" stands for the first
    // one repeated.
    Arrived arrives;
    bool endsItem = false;
    bool endsController = false;

    friend std::ostream& operator<<(std::ostream& out, const HostAction& row)
    {
        return out << row.name;
    }
};

const std::vector<HostAction>& hostActions()
{
    static const std::vector<HostAction> rows = {
        {"DeletesTheItem",
         [](HostObjects& objects) { objects.card.deleteItem(); },
         {},
         true,
         false},
        {"FreesTheController", [](HostObjects& objects) { objects.card.free(); }, {}, false, true},
        {"FreesTheControllerAndClicksTheSameItem",
         [](HostObjects& objects) {
             objects.card.free();
             objects.view.click(objects.clicked);
         },
         {},
         false,
         true},
        {"DeletesTheItemAndFrees",
         [](HostObjects& objects) {
             objects.card.deleteItem();
             objects.card.free();
         },
         {},
         true,
         true},
        {"FreesAndDeletesTheItem",
         [](HostObjects& objects) {
             objects.card.free();
             objects.card.deleteItem();
         },
         {},
         true,
         true},
        {"ClearsTheScene",
         [](HostObjects& objects) { objects.view.scene().clear(); },
         {},
         true,
         false},
        {"TakesTheItemOutOfTheScene",
         [](HostObjects& objects) {
             objects.view.scene().removeItem(objects.card.root());
             objects.view.scene().addItem(objects.card.root());
         },
         {}},
        {"HidesAndDisablesTheItem",
         [](HostObjects& objects) {
             objects.card.root()->hide();
             objects.card.root()->setEnabled(false);
             objects.card.root()->setEnabled(true);
             objects.card.root()->show();
         },
         {}},
        {"BuildsAndClicksAnotherCard",
         [](HostObjects& objects) {
             HeldCard third(objects.host, cardOfAll());
             third.build();
             click(*third.root(), third.centerOf(0));
         },
         {"box"}},
        {"ClicksAnotherCardOfTheView",
         [](HostObjects& objects) { objects.view.click(objects.other.centerOf(3)); },
         {"button"}},
        {"ClicksTheSameItem",
         [](HostObjects& objects) { objects.view.click(objects.clicked); },
         {"again"}},
        {"ReadsTheCardAgain",
         [](HostObjects& objects) {
             EXPECT_EQ(Plix_InitData(objects.card.controller(), cardOfAll()), 0);
         },
         {}},
        {"BuildsTheCardAgain",
         [](HostObjects& objects) {
             const std::unique_ptr<QGraphicsItem> root(
                 Plix_CreateQGraphicsItem(objects.card.controller()));
             EXPECT_NE(root, nullptr);
         },
         {}},
        {"LaysTheCardOutAgain",
         [](HostObjects& objects) {
             Plix_RefreshLayout(objects.card.controller());
             EXPECT_EQ(Plix_ModifyHeight(objects.card.controller(), 0), 0);
         },
         {}},
        {"ChangesEverySetting",
         [](HostObjects& objects) {
             PlixDataController* const card = objects.card.controller();
             Plix_SetBubbleBkColor(card, "red");
             Plix_ResumeBubbleBkColor(card);
             Plix_SetHighLightText(card, {"words", "AnnLee"});
             Plix_InitSetFrom(card, 1);
             Plix_SetDpi(card, 2);
             Plix_SetCurrentLanguage("ko");
             Plix_SetMultiLangGetCallback(nullptr);
             KestroControlManager::GetInstance()->FontFamilyChanged();
         },
         {}},
        {"SetsTheCallbacksAnew",
         [](HostObjects& objects) { objects.host.listenTo(objects.card.controller()); },
         {}},
        {"RunsAnEventLoop", [](HostObjects&) { inEventLoop([] {}); }, {}},
        {"ClicksTheSameItemInAnEventLoop",
         [](HostObjects& objects) { inEventLoop([&] { objects.view.click(objects.clicked); }); },
         {"again"}},
        {"DoubleClicksTheSameItemInAnEventLoop",
         [](HostObjects& objects) {
             inEventLoop([&] { objects.view.doubleClick(objects.clicked); });
         },
         {"again", "again"}},
        {"ClicksAnotherCardInAnEventLoop",
         [](HostObjects& objects) {
             inEventLoop([&] { objects.view.click(objects.other.centerOf(3)); });
         },
         {"button"}},
        {"MovesTheMouseInAnEventLoop",
         [](HostObjects& objects) {
             inEventLoop([&] {
                 objects.view.moveTo(objects.view.nowhere());
                 objects.view.moveTo(objects.other.centerOf(0));
                 objects.view.moveTo(objects.clicked);
             });
         },
         {}},
        {"EndsTheCardInAnEventLoop",
         [](HostObjects& objects) {
             inEventLoop([&] {
                 objects.card.free();
                 objects.card.deleteItem();
                 objects.view.click(objects.clicked);
             });
         },
         {},
         true,
         true},
        {"EndsTheCardInAClickInAnEventLoop",
         [](HostObjects& objects) {
             objects.host.nextAction = [&objects] {
                 objects.card.deleteItem();
                 objects.card.free();
             };
             inEventLoop([&] { objects.view.click(objects.clicked); });
         },
         {"again"},
         true,
         true},
    };
    return rows;
}

// What is clicked: the number of the item in the card, and what arrives.
struct Source {
    const char* name;
    int child;
    const char* arrives;

    friend std::ostream& operator<<(std::ostream& out, const Source& row)
    {
        return out << row.name;
    }
};

constexpr Source kSources[] = {{"Box", 0, "box"},        {"Text", 1, "text"},
                               {"Image", 2, "image"},    {"Button", 3, "button"},
                               {"Mention", 4, "user 7"}, {"BotMention", 5, "bot 7"}};

class ClickCallback : public PlixTest {
protected:
    ClickCallback()
        : card_(host_, cardOfAll())
        , other_(host_, cardOfAll())
        , view_(*card_.build())
    {
        other_.build()->setPos(400, 0);
        view_.add(*other_.root());
    }

    // After the action: no item has grabbed the mouse, and the items that are left report
    // clicks as before.
    void expectClicksToWork(const Source& source, bool isControllerLeft)
    {
        EXPECT_EQ(view_.scene().mouseGrabberItem(), nullptr);
        if (card_.root()) {
            host_.arrived.clear();
            view_.click(card_.centerOf(source.child));
            EXPECT_EQ(host_.arrived, isControllerLeft ? Arrived {source.arrives} : Arrived {});
        }
        if (other_.root()) {
            host_.arrived.clear();
            view_.doubleClick(other_.centerOf(0));
            EXPECT_EQ(host_.arrived, (Arrived {"box", "box"}));
        }
        EXPECT_EQ(view_.scene().mouseGrabberItem(), nullptr);
    }

    ClickHost host_;
    HeldCard card_;
    HeldCard other_;
    CardView view_;
};

class ClickCallbackMay : public ClickCallback,
                         public testing::WithParamInterface<std::tuple<Source, HostAction>> { };

TEST_P(ClickCallbackMay, DoAnything)
{
    const auto& [source, action] = GetParam();
    HostObjects objects {host_, card_, other_, view_, card_.centerOf(source.child)};
    host_.nextAction = [&, perform = action.perform] { perform(objects); };

    view_.click(objects.clicked);

    Arrived expected {source.arrives};
    for (const std::string& also : action.arrives)
        expected.push_back(also == "again" ? source.arrives : also);
    EXPECT_EQ(host_.arrived, expected);
    EXPECT_EQ(card_.root() == nullptr, action.endsItem);
    EXPECT_EQ(card_.controller() == nullptr, action.endsController);
    expectClicksToWork(source, !action.endsController);
}

INSTANTIATE_TEST_SUITE_P(Hosts, ClickCallbackMay,
                         testing::Combine(testing::ValuesIn(kSources),
                                          testing::ValuesIn(hostActions())),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name)
                                 + std::get<1>(row.param).name;
                         });

class ThrowingClickCallback : public ClickCallback, public testing::WithParamInterface<Source> { };

TEST_P(ThrowingClickCallback, PassesTheExceptionOnAndLeavesTheCardUsable)
{
    const QPointF place = card_.centerOf(GetParam().child);
    host_.nextAction = [] { throw std::runtime_error("the host's"); };
    EXPECT_THROW(view_.click(place), std::runtime_error);
    EXPECT_EQ(host_.arrived, Arrived {GetParam().arrives});
    expectClicksToWork(GetParam(), true);

    host_.arrived.clear();
    host_.nextAction = [] { throw 5; };
    EXPECT_THROW(view_.click(place), int);
    EXPECT_EQ(host_.arrived, Arrived {GetParam().arrives});
    expectClicksToWork(GetParam(), true);
}

TEST_P(ThrowingClickCallback, MayEndTheCardFirst)
{
    host_.nextAction = [this] {
        card_.deleteItem();
        card_.free();
        throw std::runtime_error("the host's");
    };
    EXPECT_THROW(view_.click(card_.centerOf(GetParam().child)), std::runtime_error);
    expectClicksToWork(GetParam(), false);
}

INSTANTIATE_TEST_SUITE_P(Hosts, ThrowingClickCallback, testing::ValuesIn(kSources), RowName());

TEST_F(ClickCallback, IsNotCalledAfterTheControllerIsFreed)
{
    card_.free();
    for (const Source& source : kSources) {
        view_.click(card_.centerOf(source.child));
        view_.doubleClick(card_.centerOf(source.child));
    }
    EXPECT_EQ(host_.arrived, Arrived {});
    EXPECT_EQ(view_.scene().mouseGrabberItem(), nullptr);
}

TEST_F(ClickCallback, IsNotCalledForACardThatEndsBetweenPressAndRelease)
{
    for (const bool frees : {false, true}) {
        for (const Source& source : kSources) {
            HeldCard third(host_, cardOfAll());
            CardView thirdView(*third.build());
            const QPointF place = third.centerOf(source.child);
            thirdView.press(place);
            EXPECT_NE(thirdView.scene().mouseGrabberItem(), nullptr);
            frees ? third.free() : third.deleteItem();
            thirdView.release(place);
            EXPECT_EQ(host_.arrived, Arrived {});
            EXPECT_EQ(thirdView.scene().mouseGrabberItem(), nullptr);
        }
    }
}

TEST_F(ClickCallback, MayReturnDuringTheNextPress)
{
    for (const Source& source : kSources) {
        SCOPED_TRACE(source.name);
        const QPointF place = card_.centerOf(source.child);
        host_.arrived.clear();
        host_.nextAction = [&] { inEventLoop([&] { view_.press(place); }); };
        view_.click(place);
        view_.release(place);
        EXPECT_EQ(host_.arrived.front(), source.arrives);
        EXPECT_LE(host_.arrived.size(), 2u);
        expectClicksToWork(source, true);
    }
}

// ----- In the callbacks of reading and building a card

// A card whose build calls every callback of the host: downloads, wordings of items for
// apps only, font families, an emoji.
std::string cardOfAllCallbacks()
{
    return bubbleWithBody(
        box("vertical",
            text("first") + "," + component("image", R"("url": "https://pictures.example/a.png",)")
                + "," + component("icon", R"("url": "https://pictures.example/b.png",)") + ","
                + text("words", appAction("app://a")) + "," + button(appAction("app://b")) + ","
                + text(R"(an <e code=\"1F600\"/> emoji)") + ","
                + box("vertical", text("inner") + "," + button(uriAction("button"))) + ","
                + text("last", uriAction("last"))));
}

// A host that performs an action in one of the calls of its callbacks.
class ActingHost : public KestroControlSupport {
public:
    enum Callback { Download, Wording, FontFamily, Emoji, LogLine };

    ActingHost()
    {
        Plix_SetKestroControlSupport(this);
        Plix_SetMultiLangGetCallback([](const char*) {
            current->called(Wording);
            return std::string("On your phone");
        });
        Plix_SetWiteLogCallback([](const char* line) {
            current->lines.emplace_back(line);
            current->called(LogLine);
        });
        current = this;
    }

    ~ActingHost() override
    {
        Plix_SetWiteLogCallback(&collectLogLine);
        Plix_SetMultiLangGetCallback(nullptr);
        Plix_SetKestroControlSupport(nullptr);
        current = nullptr;
    }

    void listenTo(PlixDataController* controller)
    {
        Plix_SetDownloadCallBack(
            controller,
            [](PlixDataController*, const std::string&, void*) {
                ++current->downloads;
                current->called(Download);
                return std::string();
            },
            nullptr);
    }

    QString GetFontFamily() const override
    {
        current->called(FontFamily);
        return QStringLiteral("DejaVu Sans");
    }

    QImage GetEmojiImage(const QString&) const override
    {
        current->called(Emoji);
        QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::yellow);
        return image;
    }

    void actOn(Callback callback, int number, std::function<void()> action)
    {
        callback_ = callback;
        number_ = number;
        action_ = std::move(action);
    }

    bool hasActed() const { return !action_; }

    std::vector<std::string> lines;
    int downloads = 0;

private:
    void called(Callback callback)
    {
        if (callback != callback_ || number_-- > 0)
            return;
        if (const std::function<void()> action = std::exchange(action_, {}))
            action();
    }

    static ActingHost* current;

    Callback callback_ = Download;
    int number_ = 0; // how many calls come before the one that acts
    std::function<void()> action_;
};

ActingHost* ActingHost::current = nullptr;

struct CallRow {
    const char* name;
    ActingHost::Callback callback;
    int number;

    friend std::ostream& operator<<(std::ostream& out, const CallRow& row)
    {
        return out << row.name;
    }
};

constexpr CallRow kCalls[] = {
    {"Download", ActingHost::Download, 0},          {"SecondDownload", ActingHost::Download, 1},
    {"WordingOfAText", ActingHost::Wording, 0},     {"WordingOfAButton", ActingHost::Wording, 1},
    {"FirstFontFamily", ActingHost::FontFamily, 0}, {"FontFamily", ActingHost::FontFamily, 2},
    {"LastFontFamily", ActingHost::FontFamily, 6},  {"Emoji", ActingHost::Emoji, 0}};

struct BuildAction {
    const char* name;
    void (*perform)(HostObjects& objects);
    Arrived arrives; // from clicks on the other card
    bool endsController = false;

    friend std::ostream& operator<<(std::ostream& out, const BuildAction& row)
    {
        return out << row.name;
    }
};

const std::vector<BuildAction>& buildActions()
{
    static const std::vector<BuildAction> rows = {
        {"FreesTheController", [](HostObjects& objects) { objects.card.free(); }, {}, true},
        {"DeletesTheEarlierItem", [](HostObjects& objects) { objects.card.deleteItem(); }, {}},
        {"DeletesTheEarlierItemAndFrees",
         [](HostObjects& objects) {
             objects.card.deleteItem();
             objects.card.free();
         },
         {},
         true},
        {"FreesAndDeletesTheEarlierItem",
         [](HostObjects& objects) {
             objects.card.free();
             objects.card.deleteItem();
         },
         {},
         true},
        {"EndsAnotherCard",
         [](HostObjects& objects) {
             objects.other.deleteItem();
             objects.other.free();
         },
         {}},
        {"ClearsTheScene", [](HostObjects& objects) { objects.view.scene().clear(); }, {}},
        {"BuildsAndClicksAnotherCard",
         [](HostObjects& objects) {
             HeldCard third(objects.host, cardOfAll());
             third.build();
             click(*third.root(), third.centerOf(0));
         },
         {"box"}},
        {"ClicksAnotherCardInAnEventLoop",
         [](HostObjects& objects) {
             inEventLoop([&] { objects.view.click(objects.other.centerOf(3)); });
         },
         {"button"}},
        {"ReadsTheCardAgain",
         [](HostObjects& objects) {
             EXPECT_EQ(Plix_InitData(objects.card.controller(), cardOfAllCallbacks()), 0);
         },
         {}},
        {"BuildsTheCardAgain",
         [](HostObjects& objects) {
             const std::unique_ptr<QGraphicsItem> root(
                 Plix_CreateQGraphicsItem(objects.card.controller()));
             EXPECT_NE(root, nullptr);
         },
         {}},
        {"BuildsTheCardAgainAndFrees",
         [](HostObjects& objects) {
             delete Plix_CreateQGraphicsItem(objects.card.controller());
             objects.card.free();
         },
         {},
         true},
        {"LaysTheCardOutAgain",
         [](HostObjects& objects) {
             Plix_RefreshLayout(objects.card.controller());
             Plix_ModifyHeight(objects.card.controller(), 100);
             Plix_SetHighLightText(objects.card.controller(), {"first"});
             Plix_SetBubbleBkColor(objects.card.controller(), "red");
         },
         {}},
        {"TakesItsCallbacksBack",
         [](HostObjects& objects) {
             Plix_SetDownloadCallBack(objects.card.controller(), nullptr, nullptr);
             Plix_SetMultiLangGetCallback(nullptr);
             Plix_SetKestroControlSupport(nullptr);
         },
         {}},
        {"SwitchesTheFont",
         [](HostObjects&) { KestroControlManager::GetInstance()->FontFamilyChanged(); },
         {}},
    };
    return rows;
}

class BuildCallback : public PlixTest {
protected:
    BuildCallback()
        : card_(clicks_, cardOfAllCallbacks())
        , other_(clicks_, cardOfAll())
        , view_(*other_.build())
    {
        host_.listenTo(card_.controller());
    }

    // Adds the built card to the view of the other card and clicks both.
    void expectClicksToWork()
    {
        EXPECT_EQ(view_.scene().mouseGrabberItem(), nullptr);
        clicks_.arrived.clear();
        if (other_.root())
            view_.click(other_.centerOf(0));
        EXPECT_EQ(clicks_.arrived, other_.root() ? Arrived {"box"} : Arrived {});
        if (!card_.root())
            return;
        clicks_.arrived.clear();
        if (!card_.root()->scene())
            view_.add(*card_.root());
        const QList<QGraphicsItem*> items = card_.root()->childItems().at(0)->childItems();
        click(*card_.root(), items.back()->sceneBoundingRect().center());
        EXPECT_LE(clicks_.arrived.size(), card_.controller() ? 1u : 0u);
    }

    ClickHost clicks_;
    ActingHost host_;
    HeldCard card_;
    HeldCard other_;
    CardView view_;
};

class BuildCallbackMay : public BuildCallback,
                         public testing::WithParamInterface<std::tuple<CallRow, BuildAction>> { };

TEST_P(BuildCallbackMay, DoAnything)
{
    const auto& [call, action] = GetParam();
    HostObjects objects {clicks_, card_, other_, view_, {}};
    // There is an item of an earlier build, which the callback may delete.
    card_.build();
    host_.actOn(call.callback, call.number, [&, perform = action.perform] { perform(objects); });

    EXPECT_NE(card_.build(), nullptr);

    ASSERT_TRUE(host_.hasActed());
    EXPECT_EQ(clicks_.arrived, action.arrives);
    EXPECT_EQ(card_.controller() == nullptr, action.endsController);
    EXPECT_EQ(host_.lines, std::vector<std::string> {});
    expectClicksToWork();
}

INSTANTIATE_TEST_SUITE_P(Hosts, BuildCallbackMay,
                         testing::Combine(testing::ValuesIn(kCalls),
                                          testing::ValuesIn(buildActions())),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name)
                                 + std::get<1>(row.param).name;
                         });

TEST_F(BuildCallback, IsNotCalledAfterTheControllerIsFreed)
{
    EXPECT_NE(card_.build(), nullptr);
    EXPECT_EQ(host_.downloads, 2);
    host_.actOn(ActingHost::Download, 0, [this] { card_.free(); });
    EXPECT_NE(card_.build(), nullptr);
    EXPECT_EQ(host_.downloads, 3) << "the second image is not downloaded";
}

class ThrowingBuildCallback : public BuildCallback, public testing::WithParamInterface<CallRow> {
protected:
    // The item whose callback throws is lost, unless it works without the result: an image
    // shows its background, a wording is empty.
    int lostItems() const
    {
        const ActingHost::Callback callback = GetParam().callback;
        return callback == ActingHost::FontFamily || callback == ActingHost::Emoji ? 1 : 0;
    }

    // Without the focus stop that a text brings along.
    int items() const
    {
        int count = 0;
        forEachItem(*card_.root(), [&](const QGraphicsItem& item) {
            count += dynamic_cast<const PlixFocusStop*>(&item) ? 0 : 1;
        });
        return count;
    }

    // Builds with a host that throws once, and then with the same host again.
    void expectOneItemLost(std::function<void()> thrown, const std::string& line)
    {
        ASSERT_NE(card_.build(), nullptr);
        const int whole = items();
        host_.actOn(GetParam().callback, GetParam().number, std::move(thrown));
        ASSERT_NE(card_.build(), nullptr);
        EXPECT_TRUE(host_.hasActed());
        EXPECT_EQ(items(), whole - lostItems());
        EXPECT_EQ(std::exchange(host_.lines, {}), std::vector<std::string> {line});
        expectClicksToWork();

        ASSERT_NE(card_.build(), nullptr);
        EXPECT_EQ(items(), whole);
        EXPECT_EQ(host_.lines, std::vector<std::string> {});
        expectClicksToWork();
    }
};

TEST_P(ThrowingBuildCallback, LosesNoMoreThanItsItem)
{
    expectOneItemLost([] { throw std::runtime_error("the host's"); },
                      "call PlixDataMgr::CreateUI failed. the host's");
}

TEST_P(ThrowingBuildCallback, LosesNoMoreThanItsItemWhateverTypeIsThrown)
{
    struct Anything { };
    expectOneItemLost([] { throw 5; }, "call PlixDataMgr::CreateUI failed. ");
    expectOneItemLost([] { throw Anything(); }, "call PlixDataMgr::CreateUI failed. ");
}

TEST_P(ThrowingBuildCallback, MayFreeTheControllerFirst)
{
    host_.actOn(GetParam().callback, GetParam().number, [this] {
        card_.free();
        throw std::runtime_error("the host's");
    });
    EXPECT_NE(card_.build(), nullptr);
    expectClicksToWork();
}

INSTANTIATE_TEST_SUITE_P(Hosts, ThrowingBuildCallback, testing::ValuesIn(kCalls), RowName());

// So no callback can throw while Qt paints.
TEST_F(BuildCallback, IsNotCalledWhileACardIsPainted)
{
    ASSERT_NE(card_.build(), nullptr);
    for (const CallRow& call : kCalls) {
        host_.actOn(call.callback, 0, [] {});
        const Picture picture(*card_.root());
        EXPECT_FALSE(host_.hasActed()) << call.name;
    }
}

// The callback of the log, while a card with many errors is read.
class LogCallbackMay : public BuildCallback,
                       public testing::WithParamInterface<std::tuple<int, BuildAction>> {
protected:
    static std::string brokenCard()
    {
        return bubbleWithBody(
            box("vertical",
                text("first", R"("margin": 5,)") + "," + component("image", R"("url": [],)") + ","
                    + box("vertical", component("button", R"("action": {"uri": {}},)")) + ","
                    + text("last", R"("action": {"type": "uri", "i18nLabels": {"ko": 5}},)")));
    }
};

TEST_P(LogCallbackMay, DoAnythingWhileACardIsRead)
{
    const auto& [number, action] = GetParam();
    HostObjects objects {clicks_, card_, other_, view_, {}};
    card_.build();
    host_.actOn(ActingHost::LogLine, number, [&, perform = action.perform] { perform(objects); });

    Plix_InitData(card_.controller(), brokenCard());

    ASSERT_TRUE(host_.hasActed());
    EXPECT_EQ(clicks_.arrived, action.arrives);
    EXPECT_EQ(card_.controller() == nullptr, action.endsController);
    expectClicksToWork();
    if (card_.controller()) {
        EXPECT_NE(card_.build(), nullptr);
    }
    expectClicksToWork();
}

INSTANTIATE_TEST_SUITE_P(Hosts, LogCallbackMay,
                         testing::Combine(testing::Range(0, 4), testing::ValuesIn(buildActions())),
                         [](const auto& row) {
                             return "Line" + std::to_string(std::get<0>(row.param))
                                 + std::get<1>(row.param).name;
                         });

TEST_F(BuildCallback, OfTheLogMayDoAnything)
{
    for (const BuildAction& action : buildActions()) {
        SCOPED_TRACE(action.name);
        ClickHost others;
        HeldCard mine(others, cardOfAllCallbacks());
        HeldCard shown(others, cardOfAll());
        CardView shownIn(*shown.build());
        Plix_SetDownloadCallBack(
            mine.controller(),
            [](PlixDataController*, const std::string&, void*) -> std::string {
                throw std::runtime_error("no network");
            },
            nullptr);
        HostObjects objects {others, mine, shown, shownIn, {}};
        host_.actOn(ActingHost::LogLine, 0, [&] { action.perform(objects); });
        EXPECT_NE(mine.build(), nullptr);
        EXPECT_TRUE(host_.hasActed());
        EXPECT_EQ(others.arrived, action.arrives);
        host_.listenTo(card_.controller());
        Plix_SetKestroControlSupport(&host_);
    }
}

// This adds to the zone's list while its item is built.
TEST_F(BuildCallback, OfTheImageOfAZoneMayReadTheCardAgain)
{
    static const std::string json =
        R"({"type": "bubble", "hero": {"type": "image", "url": "picture", "size": "xl"}})";
    int questions = 0;
    const TestCard picture(json, [&questions](PlixDataController* controller) {
        Plix_SetDownloadCallBack(
            controller,
            [](PlixDataController* asking, const std::string&, void* userData) -> std::string {
                ++*static_cast<int*>(userData);
                Plix_InitData(asking, json);
                return {};
            },
            &questions);
    });
    EXPECT_EQ(questions, 1);
    EXPECT_EQ(picture.root()->childItems().size(), 1);
    EXPECT_EQ(picture.item({0})->boundingRect().width(), 140);
}

TEST_F(BuildCallback, OfTheLogMayThrow)
{
    host_.actOn(ActingHost::LogLine, 0, [] { throw std::runtime_error("the log's"); });
    EXPECT_EQ(Plix_InitData(card_.controller(), R"({"type": "bubble", "size": 5})"), -1);
    EXPECT_TRUE(host_.hasActed());
    host_.actOn(ActingHost::LogLine, 0, [] { throw 5; });
    EXPECT_EQ(Plix_InitData(card_.controller(), R"({"type": "bubble", "size": 5})"), -1);
    EXPECT_TRUE(host_.hasActed());
    EXPECT_NE(card_.build(), nullptr);
    expectClicksToWork();
}

} // namespace
} // namespace plix::test
