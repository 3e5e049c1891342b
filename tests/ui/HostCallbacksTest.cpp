// A host may do anything from within a callback: end the card, free its
// controller, build others, run an event loop, throw.
#include "CardTree.h"
#include "ClickHost.h"

#include "support/Mouse.h"
#include "support/Picture.h"
#include "support/PlixTest.h"

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

// One of each item that tells the host of clicks.
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

// A card as a careful host holds it, who knows that others may delete it.
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

    // The item of the last build; the one before is deleted.
    QGraphicsItem* build()
    {
        // Other builds of the same card may happen meanwhile.
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

// ----- While a click is told

// What the host has at hand.
struct Desk {
    ClickHost& host;
    HeldCard& card;
    HeldCard& other; // shown in the same view
    CardView& view;
    QPointF clicked;
};

// Runs `body` as a dialog would: from an event loop of its own.
void inEventLoop(const std::function<void()>& body)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        body();
        loop.quit();
    });
    loop.exec();
}

struct Deed {
    const char* name;
    void (*perform)(Desk& desk);
    // What else arrives, from the clicks that are part of the deed: "again" is
    // what has arrived already.
    Arrived arrives;
    bool endsItem = false;
    bool endsController = false;

    friend std::ostream& operator<<(std::ostream& out, const Deed& row) { return out << row.name; }
};

const std::vector<Deed>& deeds()
{
    static const std::vector<Deed> rows = {
        {"DeletesTheItem", [](Desk& desk) { desk.card.deleteItem(); }, {}, true, false},
        {"FreesTheController", [](Desk& desk) { desk.card.free(); }, {}, false, true},
        {"FreesTheControllerAndClicksTheSameItem",
         [](Desk& desk) {
             desk.card.free();
             desk.view.click(desk.clicked);
         },
         {},
         false,
         true},
        {"DeletesTheItemAndFrees",
         [](Desk& desk) {
             desk.card.deleteItem();
             desk.card.free();
         },
         {},
         true,
         true},
        {"FreesAndDeletesTheItem",
         [](Desk& desk) {
             desk.card.free();
             desk.card.deleteItem();
         },
         {},
         true,
         true},
        {"ClearsTheScene", [](Desk& desk) { desk.view.scene().clear(); }, {}, true, false},
        {"TakesTheItemOutOfTheScene",
         [](Desk& desk) {
             desk.view.scene().removeItem(desk.card.root());
             desk.view.scene().addItem(desk.card.root());
         },
         {}},
        {"HidesAndDisablesTheItem",
         [](Desk& desk) {
             desk.card.root()->hide();
             desk.card.root()->setEnabled(false);
             desk.card.root()->setEnabled(true);
             desk.card.root()->show();
         },
         {}},
        {"BuildsAndClicksAnotherCard",
         [](Desk& desk) {
             HeldCard third(desk.host, cardOfAll());
             third.build();
             click(*third.root(), third.centerOf(0));
         },
         {"box"}},
        {"ClicksAnotherCardOfTheView",
         [](Desk& desk) { desk.view.click(desk.other.centerOf(3)); },
         {"button"}},
        {"ClicksTheSameItem", [](Desk& desk) { desk.view.click(desk.clicked); }, {"again"}},
        {"ReadsTheCardAgain",
         [](Desk& desk) { EXPECT_EQ(Plix_InitData(desk.card.controller(), cardOfAll()), 0); },
         {}},
        {"BuildsTheCardAgain",
         [](Desk& desk) {
             const std::unique_ptr<QGraphicsItem> root(
                 Plix_CreateQGraphicsItem(desk.card.controller()));
             EXPECT_NE(root, nullptr);
         },
         {}},
        {"LaysTheCardOutAgain",
         [](Desk& desk) {
             Plix_RefreshLayout(desk.card.controller());
             EXPECT_EQ(Plix_ModifyHeight(desk.card.controller(), 0), 0);
         },
         {}},
        {"ChangesEverySetting",
         [](Desk& desk) {
             PlixDataController* const card = desk.card.controller();
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
         [](Desk& desk) { desk.host.listenTo(desk.card.controller()); },
         {}},
        {"RunsAnEventLoop", [](Desk&) { inEventLoop([] {}); }, {}},
        {"ClicksTheSameItemInAnEventLoop",
         [](Desk& desk) { inEventLoop([&] { desk.view.click(desk.clicked); }); },
         {"again"}},
        {"DoubleClicksTheSameItemInAnEventLoop",
         [](Desk& desk) { inEventLoop([&] { desk.view.doubleClick(desk.clicked); }); },
         {"again", "again"}},
        {"ClicksAnotherCardInAnEventLoop",
         [](Desk& desk) { inEventLoop([&] { desk.view.click(desk.other.centerOf(3)); }); },
         {"button"}},
        {"MovesTheMouseAboutInAnEventLoop",
         [](Desk& desk) {
             inEventLoop([&] {
                 desk.view.moveTo(desk.view.nowhere());
                 desk.view.moveTo(desk.other.centerOf(0));
                 desk.view.moveTo(desk.clicked);
             });
         },
         {}},
        {"EndsTheCardInAnEventLoop",
         [](Desk& desk) {
             inEventLoop([&] {
                 desk.card.free();
                 desk.card.deleteItem();
                 desk.view.click(desk.clicked);
             });
         },
         {},
         true,
         true},
        {"EndsTheCardFromWithinAClickInAnEventLoop",
         [](Desk& desk) {
             desk.host.deed = [&desk] {
                 desk.card.deleteItem();
                 desk.card.free();
             };
             inEventLoop([&] { desk.view.click(desk.clicked); });
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
        : card(host, cardOfAll())
        , other(host, cardOfAll())
        , view(*card.build())
    {
        other.build()->setPos(400, 0);
        view.add(*other.root());
    }

    // After whatever happened: the mouse is free, and whoever is left hears of
    // clicks as before.
    void expectClicksToGoOn(const Source& source, bool isControllerLeft)
    {
        EXPECT_EQ(view.scene().mouseGrabberItem(), nullptr);
        if (card.root()) {
            host.arrived.clear();
            view.click(card.centerOf(source.child));
            EXPECT_EQ(host.arrived, isControllerLeft ? Arrived {source.arrives} : Arrived {});
        }
        if (other.root()) {
            host.arrived.clear();
            view.doubleClick(other.centerOf(0));
            EXPECT_EQ(host.arrived, (Arrived {"box", "box"}));
        }
        EXPECT_EQ(view.scene().mouseGrabberItem(), nullptr);
    }

    ClickHost host;
    HeldCard card;
    HeldCard other;
    CardView view;
};

class ClickCallbackMay : public ClickCallback,
                         public testing::WithParamInterface<std::tuple<Source, Deed>> { };

TEST_P(ClickCallbackMay, DoAnything)
{
    const auto& [source, deed] = GetParam();
    Desk desk {host, card, other, view, card.centerOf(source.child)};
    host.deed = [&, perform = deed.perform] { perform(desk); };

    view.click(desk.clicked);

    Arrived expected {source.arrives};
    for (const std::string& also : deed.arrives)
        expected.push_back(also == "again" ? source.arrives : also);
    EXPECT_EQ(host.arrived, expected);
    EXPECT_EQ(card.root() == nullptr, deed.endsItem);
    EXPECT_EQ(card.controller() == nullptr, deed.endsController);
    expectClicksToGoOn(source, !deed.endsController);
}

INSTANTIATE_TEST_SUITE_P(Hosts, ClickCallbackMay,
                         testing::Combine(testing::ValuesIn(kSources), testing::ValuesIn(deeds())),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name)
                                 + std::get<1>(row.param).name;
                         });

class ThrowingClickCallback : public ClickCallback, public testing::WithParamInterface<Source> { };

TEST_P(ThrowingClickCallback, PassesThroughAndLeavesNothingBroken)
{
    const QPointF place = card.centerOf(GetParam().child);
    host.deed = [] { throw std::runtime_error("the host's"); };
    EXPECT_THROW(view.click(place), std::runtime_error);
    EXPECT_EQ(host.arrived, Arrived {GetParam().arrives});
    expectClicksToGoOn(GetParam(), true);

    host.arrived.clear();
    host.deed = [] { throw 5; };
    EXPECT_THROW(view.click(place), int);
    EXPECT_EQ(host.arrived, Arrived {GetParam().arrives});
    expectClicksToGoOn(GetParam(), true);
}

TEST_P(ThrowingClickCallback, MayHaveEndedTheCard)
{
    host.deed = [this] {
        card.deleteItem();
        card.free();
        throw std::runtime_error("the host's");
    };
    EXPECT_THROW(view.click(card.centerOf(GetParam().child)), std::runtime_error);
    expectClicksToGoOn(GetParam(), false);
}

INSTANTIATE_TEST_SUITE_P(Hosts, ThrowingClickCallback, testing::ValuesIn(kSources),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(ClickCallback, IsNotCalledOnceTheControllerIsFreed)
{
    card.free();
    for (const Source& source : kSources) {
        view.click(card.centerOf(source.child));
        view.doubleClick(card.centerOf(source.child));
    }
    EXPECT_EQ(host.arrived, Arrived {});
    EXPECT_EQ(view.scene().mouseGrabberItem(), nullptr);
}

TEST_F(ClickCallback, IsNotCalledForACardThatEndedUnderTheMouse)
{
    for (const bool frees : {false, true}) {
        for (const Source& source : kSources) {
            HeldCard third(host, cardOfAll());
            CardView thirdView(*third.build());
            const QPointF place = third.centerOf(source.child);
            thirdView.press(place);
            EXPECT_NE(thirdView.scene().mouseGrabberItem(), nullptr);
            frees ? third.free() : third.deleteItem();
            thirdView.release(place);
            EXPECT_EQ(host.arrived, Arrived {});
            EXPECT_EQ(thirdView.scene().mouseGrabberItem(), nullptr);
        }
    }
}

TEST_F(ClickCallback, MayEndWhileTheNextPressLasts)
{
    for (const Source& source : kSources) {
        SCOPED_TRACE(source.name);
        const QPointF place = card.centerOf(source.child);
        host.arrived.clear();
        host.deed = [&] { inEventLoop([&] { view.press(place); }); };
        view.click(place);
        view.release(place);
        EXPECT_EQ(host.arrived.front(), source.arrives);
        EXPECT_LE(host.arrived.size(), 2u);
        expectClicksToGoOn(source, true);
    }
}

// ----- While a card is read and built

// A card that asks its host for everything while it is built, in this order:
// a download, the wording for what is for apps, the font family, an emoji.
std::string askingCard()
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

// A host that is asked many things, and acts on one of the questions.
class AskedHost : public KestroControlSupport {
public:
    enum Question { Download, Wording, FontFamily, Emoji, LogLine };

    AskedHost()
    {
        Plix_SetKestroControlSupport(this);
        Plix_SetMultiLangGetCallback([](const char*) {
            current->asked(Wording);
            return std::string("On your phone");
        });
        Plix_SetWiteLogCallback([](const char* line) {
            current->lines.emplace_back(line);
            current->asked(LogLine);
        });
        current = this;
    }

    ~AskedHost() override
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
                current->asked(Download);
                return std::string();
            },
            nullptr);
    }

    QString GetFontFamily() const override
    {
        current->asked(FontFamily);
        return QStringLiteral("DejaVu Sans");
    }

    QImage GetEmojiImage(const QString&) const override
    {
        current->asked(Emoji);
        QImage image(8, 8, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::yellow);
        return image;
    }

    void actOn(Question question, int number, std::function<void()> deed)
    {
        question_ = question;
        number_ = number;
        deed_ = std::move(deed);
    }

    bool hasActed() const { return !deed_; }

    std::vector<std::string> lines;
    int downloads = 0;

private:
    void asked(Question question)
    {
        if (question != question_ || number_-- > 0)
            return;
        if (const std::function<void()> deed = std::exchange(deed_, {}))
            deed();
    }

    static AskedHost* current;

    Question question_ = Download;
    int number_ = 0; // how many questions are let pass
    std::function<void()> deed_;
};

AskedHost* AskedHost::current = nullptr;

struct Asked {
    const char* name;
    AskedHost::Question question;
    int number;

    friend std::ostream& operator<<(std::ostream& out, const Asked& row) { return out << row.name; }
};

constexpr Asked kAsked[] = {
    {"Download", AskedHost::Download, 0},          {"SecondDownload", AskedHost::Download, 1},
    {"WordingOfAText", AskedHost::Wording, 0},     {"WordingOfAButton", AskedHost::Wording, 1},
    {"FirstFontFamily", AskedHost::FontFamily, 0}, {"FontFamily", AskedHost::FontFamily, 2},
    {"LastFontFamily", AskedHost::FontFamily, 6},  {"Emoji", AskedHost::Emoji, 0}};

struct BuildDeed {
    const char* name;
    void (*perform)(Desk& desk);
    Arrived arrives; // from clicks on the other card
    bool endsController = false;

    friend std::ostream& operator<<(std::ostream& out, const BuildDeed& row)
    {
        return out << row.name;
    }
};

const std::vector<BuildDeed>& buildDeeds()
{
    static const std::vector<BuildDeed> rows = {
        {"FreesTheController", [](Desk& desk) { desk.card.free(); }, {}, true},
        {"DeletesTheEarlierItem", [](Desk& desk) { desk.card.deleteItem(); }, {}},
        {"DeletesTheEarlierItemAndFrees",
         [](Desk& desk) {
             desk.card.deleteItem();
             desk.card.free();
         },
         {},
         true},
        {"FreesAndDeletesTheEarlierItem",
         [](Desk& desk) {
             desk.card.free();
             desk.card.deleteItem();
         },
         {},
         true},
        {"EndsAnotherCard",
         [](Desk& desk) {
             desk.other.deleteItem();
             desk.other.free();
         },
         {}},
        {"ClearsTheScene", [](Desk& desk) { desk.view.scene().clear(); }, {}},
        {"BuildsAndClicksAnotherCard",
         [](Desk& desk) {
             HeldCard third(desk.host, cardOfAll());
             third.build();
             click(*third.root(), third.centerOf(0));
         },
         {"box"}},
        {"ClicksAnotherCardInAnEventLoop",
         [](Desk& desk) { inEventLoop([&] { desk.view.click(desk.other.centerOf(3)); }); },
         {"button"}},
        {"ReadsTheCardAgain",
         [](Desk& desk) { EXPECT_EQ(Plix_InitData(desk.card.controller(), askingCard()), 0); },
         {}},
        {"BuildsTheCardAgain",
         [](Desk& desk) {
             const std::unique_ptr<QGraphicsItem> root(
                 Plix_CreateQGraphicsItem(desk.card.controller()));
             EXPECT_NE(root, nullptr);
         },
         {}},
        {"BuildsTheCardAgainAndFrees",
         [](Desk& desk) {
             delete Plix_CreateQGraphicsItem(desk.card.controller());
             desk.card.free();
         },
         {},
         true},
        {"LaysTheCardOutAgain",
         [](Desk& desk) {
             Plix_RefreshLayout(desk.card.controller());
             Plix_ModifyHeight(desk.card.controller(), 100);
             Plix_SetHighLightText(desk.card.controller(), {"first"});
             Plix_SetBubbleBkColor(desk.card.controller(), "red");
         },
         {}},
        {"TakesItsCallbacksBack",
         [](Desk& desk) {
             Plix_SetDownloadCallBack(desk.card.controller(), nullptr, nullptr);
             Plix_SetMultiLangGetCallback(nullptr);
             Plix_SetKestroControlSupport(nullptr);
         },
         {}},
        {"SwitchesTheFont",
         [](Desk&) { KestroControlManager::GetInstance()->FontFamilyChanged(); },
         {}},
    };
    return rows;
}

class BuildCallback : public PlixTest {
protected:
    BuildCallback()
        : card(clicks, askingCard())
        , other(clicks, cardOfAll())
        , view(*other.build())
    {
        host.listenTo(card.controller());
    }

    // Shows what was built beside the other card and clicks both.
    void expectClicksToGoOn()
    {
        EXPECT_EQ(view.scene().mouseGrabberItem(), nullptr);
        clicks.arrived.clear();
        if (other.root())
            view.click(other.centerOf(0));
        EXPECT_EQ(clicks.arrived, other.root() ? Arrived {"box"} : Arrived {});
        if (!card.root())
            return;
        clicks.arrived.clear();
        if (!card.root()->scene())
            view.add(*card.root());
        const QList<QGraphicsItem*> items = card.root()->childItems().at(0)->childItems();
        click(*card.root(), items.back()->sceneBoundingRect().center());
        EXPECT_LE(clicks.arrived.size(), card.controller() ? 1u : 0u);
    }

    ClickHost clicks;
    AskedHost host;
    HeldCard card;
    HeldCard other;
    CardView view;
};

class BuildCallbackMay : public BuildCallback,
                         public testing::WithParamInterface<std::tuple<Asked, BuildDeed>> { };

TEST_P(BuildCallbackMay, DoAnything)
{
    const auto& [asked, deed] = GetParam();
    Desk desk {clicks, card, other, view, {}};
    // With an item of an earlier build, which the host may end meanwhile.
    card.build();
    host.actOn(asked.question, asked.number, [&, perform = deed.perform] { perform(desk); });

    EXPECT_NE(card.build(), nullptr);

    ASSERT_TRUE(host.hasActed());
    EXPECT_EQ(clicks.arrived, deed.arrives);
    EXPECT_EQ(card.controller() == nullptr, deed.endsController);
    EXPECT_EQ(host.lines, std::vector<std::string> {});
    expectClicksToGoOn();
}

INSTANTIATE_TEST_SUITE_P(Hosts, BuildCallbackMay,
                         testing::Combine(testing::ValuesIn(kAsked),
                                          testing::ValuesIn(buildDeeds())),
                         [](const auto& row) {
                             return std::string(std::get<0>(row.param).name)
                                 + std::get<1>(row.param).name;
                         });

TEST_F(BuildCallback, IsNotCalledOnceTheControllerIsFreed)
{
    EXPECT_NE(card.build(), nullptr);
    EXPECT_EQ(host.downloads, 2);
    host.actOn(AskedHost::Download, 0, [this] { card.free(); });
    EXPECT_NE(card.build(), nullptr);
    EXPECT_EQ(host.downloads, 3) << "the second picture is not asked for";
}

class ThrowingBuildCallback : public BuildCallback, public testing::WithParamInterface<Asked> {
protected:
    // What is thrown costs the item that is without an answer, unless it can do
    // without: a picture shows its background, a wording is empty.
    int itemsLost() const
    {
        const AskedHost::Question question = GetParam().question;
        return question == AskedHost::FontFamily || question == AskedHost::Emoji ? 1 : 0;
    }

    int items() const
    {
        int count = 0;
        forEachItem(*card.root(), [&](QGraphicsItem&) { ++count; });
        return count;
    }

    // The builds of a host that throws once, and of the same host afterwards.
    void expectOnePieceLost(std::function<void()> thrown, const std::string& line)
    {
        ASSERT_NE(card.build(), nullptr);
        const int whole = items();
        host.actOn(GetParam().question, GetParam().number, std::move(thrown));
        ASSERT_NE(card.build(), nullptr);
        EXPECT_TRUE(host.hasActed());
        EXPECT_EQ(items(), whole - itemsLost());
        EXPECT_EQ(std::exchange(host.lines, {}), std::vector<std::string> {line});
        expectClicksToGoOn();

        ASSERT_NE(card.build(), nullptr);
        EXPECT_EQ(items(), whole);
        EXPECT_EQ(host.lines, std::vector<std::string> {});
        expectClicksToGoOn();
    }
};

TEST_P(ThrowingBuildCallback, CostsNoMoreThanItsPiece)
{
    expectOnePieceLost([] { throw std::runtime_error("the host's"); },
                       "call PlixDataMgr::CreateUI failed. the host's");
}

TEST_P(ThrowingBuildCallback, CostsNoMoreThanItsPieceWhateverIsThrown)
{
    struct Anything { };
    expectOnePieceLost([] { throw 5; }, "call PlixDataMgr::CreateUI failed. ");
    expectOnePieceLost([] { throw Anything(); }, "call PlixDataMgr::CreateUI failed. ");
}

TEST_P(ThrowingBuildCallback, MayHaveFreedTheController)
{
    host.actOn(GetParam().question, GetParam().number, [this] {
        card.free();
        throw std::runtime_error("the host's");
    });
    EXPECT_NE(card.build(), nullptr);
    expectClicksToGoOn();
}

INSTANTIATE_TEST_SUITE_P(Hosts, ThrowingBuildCallback, testing::ValuesIn(kAsked),
                         [](const auto& row) { return std::string(row.param.name); });

// So nothing of the host's can throw into Qt's painting.
TEST_F(BuildCallback, IsNotCalledWhileACardIsPainted)
{
    ASSERT_NE(card.build(), nullptr);
    for (const Asked& asked : kAsked) {
        host.actOn(asked.question, 0, [] {});
        const Picture picture(*card.root());
        EXPECT_FALSE(host.hasActed()) << asked.name;
    }
}

// The log, while a card of many mistakes is read.
class LogCallbackMay : public BuildCallback,
                       public testing::WithParamInterface<std::tuple<int, BuildDeed>> {
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
    const auto& [number, deed] = GetParam();
    Desk desk {clicks, card, other, view, {}};
    card.build();
    host.actOn(AskedHost::LogLine, number, [&, perform = deed.perform] { perform(desk); });

    Plix_InitData(card.controller(), brokenCard());

    ASSERT_TRUE(host.hasActed());
    EXPECT_EQ(clicks.arrived, deed.arrives);
    EXPECT_EQ(card.controller() == nullptr, deed.endsController);
    expectClicksToGoOn();
    if (card.controller()) {
        EXPECT_NE(card.build(), nullptr);
    }
    expectClicksToGoOn();
}

INSTANTIATE_TEST_SUITE_P(Hosts, LogCallbackMay,
                         testing::Combine(testing::Range(0, 4), testing::ValuesIn(buildDeeds())),
                         [](const auto& row) {
                             return "Line" + std::to_string(std::get<0>(row.param))
                                 + std::get<1>(row.param).name;
                         });

TEST_F(BuildCallback, OfTheLogMayDoAnythingWhileACardIsBuilt)
{
    for (const BuildDeed& deed : buildDeeds()) {
        SCOPED_TRACE(deed.name);
        ClickHost others;
        HeldCard mine(others, askingCard());
        HeldCard shown(others, cardOfAll());
        CardView shownIn(*shown.build());
        Plix_SetDownloadCallBack(
            mine.controller(),
            [](PlixDataController*, const std::string&, void*) -> std::string {
                throw std::runtime_error("no network");
            },
            nullptr);
        Desk desk {others, mine, shown, shownIn, {}};
        host.actOn(AskedHost::LogLine, 0, [&] { deed.perform(desk); });
        EXPECT_NE(mine.build(), nullptr);
        EXPECT_TRUE(host.hasActed());
        EXPECT_EQ(others.arrived, deed.arrives);
        host.listenTo(card.controller());
        Plix_SetKestroControlSupport(&host);
    }
}

// The zone's own list grows while its item is being built.
TEST_F(BuildCallback, OfAZonesOwnPictureMayReadTheCardAgain)
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
    host.actOn(AskedHost::LogLine, 0, [] { throw std::runtime_error("the log's"); });
    EXPECT_EQ(Plix_InitData(card.controller(), R"({"type": "bubble", "size": 5})"), -1);
    EXPECT_TRUE(host.hasActed());
    host.actOn(AskedHost::LogLine, 0, [] { throw 5; });
    EXPECT_EQ(Plix_InitData(card.controller(), R"({"type": "bubble", "size": 5})"), -1);
    EXPECT_TRUE(host.hasActed());
    EXPECT_NE(card.build(), nullptr);
    expectClicksToGoOn();
}

} // namespace
} // namespace plix::test
