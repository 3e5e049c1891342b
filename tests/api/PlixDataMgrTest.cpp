#include "api/PlixDataMgr.h"

#include "layout/YogaLayoutItem.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixItemRegistry.h"
#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "ui/PlixBaseUI.h"
#include "ui/PlixBoxUI.h"
#include "ui/PlixBubbleUI.h"
#include "ui/text/PlixTextUI.h"

#include <QGraphicsWidget>
#include <QTextDocument>
#include <QTextOption>

#include <cmath>

namespace plix::test {
namespace {

class PlixDataMgrTest : public PlixTest { };

// All graphics items of a card that have data, from the root down.
std::vector<PlixBaseUI*> dataItems(QGraphicsItem* root)
{
    std::vector<PlixBaseUI*> items;
    if (auto* const ui = dynamic_cast<PlixBaseUI*>(root))
        items.push_back(ui);
    for (QGraphicsItem* child : root->childItems()) {
        for (PlixBaseUI* ui : dataItems(child))
            items.push_back(ui);
    }
    return items;
}

std::int64_t keyOf(QGraphicsItem* item)
{
    return item->data(256).toLongLong();
}

QSizeF sizeOf(QGraphicsItem* item)
{
    return dynamic_cast<QGraphicsWidget&>(*item).size();
}

const char kSimpleCard[] = R"({"type": "bubble",
    "header": {"type": "text", "text": "Title"},
    "body": {"type": "box", "layout": "vertical", "action": {"type": "uri", "uri": "u"},
             "contents": [{"type": "text", "text": "a"},
                          {"type": "box", "layout": "horizontal",
                           "contents": [{"type": "filler"}, {"type": "separator"}]}]}})";

TEST_F(PlixDataMgrTest, StartsWithAnEmptyBubbleAndDefaults)
{
    const PlixDataMgr manager;
    ASSERT_NE(manager.GetBubble(), nullptr);
    EXPECT_EQ(manager.GetBubble()->GetZones()[3].container->GetChildCount(), 0);
    EXPECT_EQ(manager.GetMessageType(), "");
    EXPECT_EQ(manager.GetRootItem(), nullptr);
    EXPECT_EQ(manager.GetDpi(), 1.0F);
    EXPECT_TRUE(manager.GetDisplayParam().mobileOnlyCheck);
    EXPECT_FALSE(manager.GetDisplayParam().markupEnabled);
    EXPECT_EQ(manager.GetDisplayParam().wrapMode, 4);
    EXPECT_EQ(manager.GetDisplayParam().extraOption, 1);
}

TEST_F(PlixDataMgrTest, KeepsWhatTheHostSets)
{
    const TestCard card(R"({"type": "bubble"})", [](PlixDataController* handle) {
        PlixDisplayParam param;
        param.mobileOnlyCheck = false;
        param.markupEnabled = true;
        param.wrapMode = 2;
        param.extraOption = 99;
        Plix_SetDisplayParam(handle, param);
        Plix_SetDpi(handle, 2.5F);
    });
    EXPECT_EQ(card.manager().GetDpi(), 2.5F);
    const PlixDisplayParam param = card.manager().GetDisplayParam();
    EXPECT_FALSE(param.mobileOnlyCheck);
    EXPECT_TRUE(param.markupEnabled);
    EXPECT_EQ(param.wrapMode, 2);
    EXPECT_EQ(param.extraOption, 99);
}

TEST_F(PlixDataMgrTest, BuildsTheTreeOfTheData)
{
    const TestCard card(kSimpleCard);
    EXPECT_EQ(card.manager().GetRootItem(), card.root());
    EXPECT_NE(dynamic_cast<PlixBubbleUI*>(card.root()), nullptr);
    ASSERT_EQ(card.root()->childItems().size(), 2);
    ASSERT_EQ(card.item({1})->childItems().size(), 2);
    EXPECT_EQ(card.item({1, 1})->childItems().size(), 2);
    // The layout nodes form the same tree as the graphics items.
    EXPECT_EQ(card.ui<PlixBubbleUI>({})->childCount(), 2);
    EXPECT_EQ(card.ui<PlixBoxUI>({1})->childCount(), 2);
    EXPECT_EQ(card.ui<PlixBoxUI>({1})->childAt(1), card.ui<PlixBoxUI>({1, 1}));
}

TEST_F(PlixDataMgrTest, ZonesAreInOrder)
{
    const auto zone = [](const char* name) {
        return std::string("\"") + name + R"(": {"type": "box", "layout": "vertical"}, )";
    };
    const TestCard card('{' + zone("footer") + zone("body") + zone("hero") + zone("header")
                        + R"("type": "bubble"})");
    const auto bubble = card.bubbleData();
    ASSERT_EQ(card.root()->childItems().size(), 4);
    for (int i = 0; i < 4; ++i) {
        const auto zoneItem =
            bubble->GetZones()[static_cast<std::size_t>(i)].container->GetChild(0);
        EXPECT_EQ(keyOf(card.item({i})), PlixItemRegistry::KeyOf(zoneItem.get())) << i;
    }
}

TEST_F(PlixDataMgrTest, EveryItemHasAKeyAnOwnerAndNoParentLayout)
{
    const TestCard card(kSimpleCard);
    const auto items = dataItems(card.root());
    ASSERT_EQ(items.size(), 7U);
    for (PlixBaseUI* ui : items) {
        const auto data = PlixItemRegistry::GetInstance().Find(keyOf(ui->GetGraphicsItem()));
        ASSERT_NE(data, nullptr);
        EXPECT_EQ(PlixItemRegistry::KeyOf(data.get()), keyOf(ui->GetGraphicsItem()));
        EXPECT_EQ(ui->GetOwner(), card.controller());
        EXPECT_EQ(ui->GetChildParentLayout(), nullptr);
        EXPECT_EQ(dynamic_cast<PlixBaseUI*>(ui->GetYogaItem()), ui);
        EXPECT_EQ(ui->GetLayoutItem()->parentLayoutItem(), nullptr);
    }
    EXPECT_EQ(keyOf(card.root()), PlixItemRegistry::KeyOf(card.bubbleData().get()));
}

// Texts read their colour from the sender and their wrapping from the controller in
// Init().
TEST_F(PlixDataMgrTest, OwnerAndSenderAreSetBeforeAnItemIsInitialised)
{
    const TestCard card(bubbleWithBody(box("vertical", R"({"type": "text", "text": "a"})")),
                        [](PlixDataController* handle) {
                            Plix_InitSetFrom(handle, 1);
                            PlixDisplayParam param;
                            param.wrapMode = 0;
                            Plix_SetDisplayParam(handle, param);
                        });
    const auto* const text = card.ui<PlixTextUI>({0, 0});
    EXPECT_EQ(text->defaultTextColor().name(), QStringLiteral("#0087ee"));
    EXPECT_EQ(text->document()->defaultTextOption().wrapMode(), QTextOption::NoWrap);

    const TestCard plain(bubbleWithBody(box("vertical", R"({"type": "text", "text": "a"})")));
    const auto* const other = plain.ui<PlixTextUI>({0, 0});
    EXPECT_EQ(other->defaultTextColor().name(), QStringLiteral("#767676"));
    EXPECT_EQ(other->document()->defaultTextOption().wrapMode(),
              QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST_F(PlixDataMgrTest, EachBuildPassesTheDisplaySettingsToTheData)
{
    const std::string json =
        bubbleWithBody(box("vertical", R"({"type": "filler"})", R"("action": {"appUri": "a"}, )"));
    const auto isAppOnly = [](const TestCard& card) {
        const auto top = card.bubbleData()->GetBody()->GetChild(0);
        const auto inner = std::dynamic_pointer_cast<PlixDataBox>(top)->GetContainer()->GetChild(0);
        EXPECT_EQ(top->IsAppOnlyAction(), inner->IsAppOnlyAction());
        return inner->IsAppOnlyAction();
    };
    PlixDisplayParam off;
    off.mobileOnlyCheck = false;
    const TestCard card(json,
                        [&](PlixDataController* handle) { Plix_SetDisplayParam(handle, off); });
    EXPECT_FALSE(isAppOnly(card));
    Plix_SetDisplayParam(card.controller(), PlixDisplayParam());
    EXPECT_FALSE(isAppOnly(card)) << "only a build reads the settings";
    const std::unique_ptr<QGraphicsItem> second(Plix_CreateQGraphicsItem(card.controller()));
    EXPECT_TRUE(isAppOnly(card));
}

TEST_F(PlixDataMgrTest, LeavesOutComponentsThatAreNotDrawn)
{
    const TestCard card(bubbleWithBody(
        box("vertical", R"({"type": "span"}, {"type": "filler"}, {"type": "bubble"})")));
    EXPECT_EQ(card.item({0})->childItems().size(), 1);
}

TEST_F(PlixDataMgrTest, TheSizeDeterminesTheWidth)
{
    const struct {
        const char* size;
        double width;
    } rows[] = {{"giga", 500}, {"autogiga", 385}, {"sn_autogiga", 343}, {"mega", 300},
                {"kilo", 260}, {"micro", 160},    {"nano", 120},        {"other", 300}};
    for (const auto& row : rows) {
        const TestCard card(bubbleWithBody(box("vertical", R"({"type": "text", "text": "a"})"),
                                           std::string(R"("size": ")") + row.size + "\", "));
        EXPECT_EQ(sizeOf(card.root()).width(), row.width) << row.size;
        EXPECT_EQ(sizeOf(card.item({0})).width(), row.width) << row.size;
    }
}

TEST_F(PlixDataMgrTest, TheFirstPassDoesNotLimitTheHeight)
{
    const TestCard card(bubbleWithBody(box("vertical", "", R"("height": "900px", )")));
    EXPECT_EQ(sizeOf(card.root()).height(), 900);
}

// ---- two builds ----

TEST_F(PlixDataMgrTest, ASecondBuildMakesAnotherRootThatIsNotLaidOut)
{
    const TestCard card(kSimpleCard);
    const std::unique_ptr<QGraphicsItem> second(Plix_CreateQGraphicsItem(card.controller()));
    ASSERT_NE(second, nullptr);
    EXPECT_NE(second.get(), card.root());
    EXPECT_EQ(card.manager().GetRootItem(), second.get());
    EXPECT_EQ(keyOf(second.get()), keyOf(card.root())) << "of the same data";

    EXPECT_EQ(sizeOf(card.root()).width(), 300);
    EXPECT_GT(sizeOf(card.root()).height(), 0);
    const auto& bubble = dynamic_cast<PlixBubbleUI&>(*second);
    EXPECT_TRUE(std::isnan(bubble.layoutWidth())) << "not attached to the root layout";

    // The root layout has the first tree only.
    EXPECT_EQ(card.ui<PlixBoxUI>({1})->layoutWidth(), 300);
}

TEST_F(PlixDataMgrTest, ASecondBuildAfterTheFirstItemIsGone)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, kSimpleCard);
    delete Plix_CreateQGraphicsItem(controller);
    QGraphicsItem* const second = Plix_CreateQGraphicsItem(controller);
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(dataItems(second).size(), 7U);
    delete second;
    Plix_Free(controller);
}

// ---- after the build ----

TEST_F(PlixDataMgrTest, ModifyHeightGrowsTheBody)
{
    const TestCard card(R"({"type": "bubble",
        "header": {"type": "box", "layout": "vertical", "height": "40px"},
        "body": {"type": "box", "layout": "vertical", "height": "60px"}})");
    EXPECT_EQ(sizeOf(card.root()), QSizeF(300, 100));
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 250), 0);
    EXPECT_EQ(sizeOf(card.root()), QSizeF(300, 250));
    EXPECT_EQ(sizeOf(card.item({0})).height(), 40);
    EXPECT_EQ(sizeOf(card.item({1})).height(), 210);

    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 250), 0) << "already that high";
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 10), 0) << "already higher";
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), -5), 0);
    EXPECT_EQ(sizeOf(card.root()), QSizeF(300, 250));
}

TEST_F(PlixDataMgrTest, ModifyHeightNeedsABody)
{
    const TestCard card(
        R"({"type": "bubble", "header": {"type": "box", "layout": "vertical", "height": "40px"}})");
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 250), -1);
    EXPECT_EQ(sizeOf(card.root()), QSizeF(300, 40));
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 20), 0);
}

TEST_F(PlixDataMgrTest, ARefreshComputesTheLayoutAgain)
{
    const TestCard card(bubbleWithBody(box(
        "vertical", R"({"type": "box", "height": "40px"}, {"type": "box", "height": "30px"})")));
    card.ui<PlixBoxUI>({0, 0})->setHeight(55);
    EXPECT_EQ(sizeOf(card.item({0, 0})).height(), 40);
    EXPECT_EQ(card.item({0, 1})->pos().y(), 60);
    Plix_RefreshLayout(card.controller());
    EXPECT_EQ(sizeOf(card.item({0, 0})).height(), 55);
    EXPECT_EQ(card.item({0, 1})->pos().y(), 75);
}

TEST_F(PlixDataMgrTest, ARefreshOfAnUnchangedCardChangesNothing)
{
    const TestCard card(kSimpleCard);
    std::vector<QRectF> before;
    for (PlixBaseUI* ui : dataItems(card.root()))
        before.push_back(ui->GetYogaItem()->geometry());
    Plix_RefreshLayout(card.controller());
    std::vector<QRectF> after;
    for (PlixBaseUI* ui : dataItems(card.root()))
        after.push_back(ui->GetYogaItem()->geometry());
    EXPECT_EQ(before, after);
}

// Takes the place of a text.
class HighlightRecorder : public YogaLayoutItem {
public:
    HighlightRecorder()
        : YogaLayoutItem(false)
    {
    }
    int setHighlightText(const QStringList& words) override
    {
        recorded = words;
        return 1;
    }

    QStringList recorded;
};

TEST_F(PlixDataMgrTest, HighlightPassesWordsInOrderAndReturnsTheResult)
{
    const TestCard card(bubbleWithBody(R"({"type": "text", "text": "a"})"));
    EXPECT_EQ(Plix_SetHighLightText(card.controller(), {"no such word"}), -1);
    HighlightRecorder recorder;
    card.ui<PlixBubbleUI>({})->addChild(&recorder);
    EXPECT_EQ(Plix_SetHighLightText(card.controller(), {"two", "caf\xC3\xA9", "one"}), 1);
    EXPECT_EQ(
        recorder.recorded,
        (QStringList {QStringLiteral("two"), QStringLiteral("caf\u00e9"), QStringLiteral("one")}));
    EXPECT_EQ(Plix_SetHighLightText(card.controller(), {}), 1);
    EXPECT_TRUE(recorder.recorded.isEmpty());
}

// ---- callbacks ----

struct Received {
    int times = 0;
    PlixDataController* controller = nullptr;
    std::string text;
    std::int64_t userNo = 0;
};

void clickBody(const TestCard& card)
{
    click(*card.root(), card.item({1})->sceneBoundingRect().center());
}

void recordClick(PlixDataController* controller, ST_ACTION& action, void* userData)
{
    auto& received = *static_cast<Received*>(userData);
    ++received.times;
    received.controller = controller;
    received.text = action.uri;
}

std::string recordDownload(PlixDataController* controller, const std::string& url, void* userData)
{
    auto& received = *static_cast<Received*>(userData);
    ++received.times;
    received.controller = controller;
    received.text = url;
    return "file of " + url;
}

void recordMention(std::int64_t userNo, void* userData)
{
    auto& received = *static_cast<Received*>(userData);
    ++received.times;
    received.userNo = userNo;
}

TEST_F(PlixDataMgrTest, AClickCallsTheCallbackThatIsSetAtThatMoment)
{
    Received first;
    Received second;
    const TestCard card(kSimpleCard, [&](PlixDataController* handle) {
        Plix_SetClickCallBack(handle, &recordClick, &first);
    });
    clickBody(card);
    EXPECT_EQ(first.times, 1);
    EXPECT_EQ(first.controller, card.controller());
    EXPECT_EQ(first.text, "u");

    Plix_SetClickCallBack(card.controller(), &recordClick, &second);
    clickBody(card);
    EXPECT_EQ(first.times, 1);
    EXPECT_EQ(second.times, 1);

    Plix_SetClickCallBack(card.controller(), nullptr, &second);
    clickBody(card);
    EXPECT_EQ(second.times, 1);
}

TEST_F(PlixDataMgrTest, TheHostGetsACopyOfTheAction)
{
    const auto change = [](PlixDataController*, ST_ACTION& action, void*) { action.uri = "other"; };
    const TestCard card(kSimpleCard, [&](PlixDataController* handle) {
        Plix_SetClickCallBack(handle, change, nullptr);
    });
    clickBody(card);
    EXPECT_EQ(card.bubbleData()->GetBody()->GetChild(0)->GetAction()->uri, "u");
}

TEST_F(PlixDataMgrTest, EventsCallTheirCallbacksWithTheirUserData)
{
    Received clicks;
    Received downloads;
    Received mentions;
    Received bots;
    const TestCard card(R"({"type": "bubble"})");
    PlixDataController* const handle = card.controller();
    Plix_SetClickCallBack(handle, &recordClick, &clicks);
    Plix_SetDownloadCallBack(handle, &recordDownload, &downloads);
    EXPECT_EQ(Plix_SetMentionHandleCallback(handle, &recordMention, &mentions), 0);
    EXPECT_EQ(Plix_SetBotMentionHandleCallback(handle, &recordMention, &bots), 0);

    ST_ACTION action;
    action.uri = "somewhere";
    card.manager().OnClick(action);
    EXPECT_EQ(clicks.times, 1);
    EXPECT_EQ(clicks.controller, handle);
    EXPECT_EQ(clicks.text, "somewhere");
    EXPECT_EQ(card.manager().DownloadFile("url"), "file of url");
    EXPECT_EQ(downloads.times, 1);
    EXPECT_EQ(downloads.controller, handle);
    card.manager().OnMention(INT64_MAX);
    EXPECT_EQ(mentions.times, 1);
    EXPECT_EQ(mentions.userNo, INT64_MAX);
    EXPECT_EQ(bots.times, 0);
    card.manager().OnBotMention(INT64_MIN);
    EXPECT_EQ(bots.times, 1);
    EXPECT_EQ(bots.userNo, INT64_MIN);
    EXPECT_EQ(mentions.times, 1);
}

TEST_F(PlixDataMgrTest, EventsWithoutCallbacksDoNothing)
{
    PlixDataMgr manager;
    ST_ACTION action;
    manager.OnClick(action);
    manager.OnMention(1);
    manager.OnBotMention(1);
    EXPECT_EQ(manager.DownloadFile("url"), "");
}

} // namespace
} // namespace plix::test
