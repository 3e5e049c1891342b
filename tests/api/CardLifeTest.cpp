// How long data and items live, and in which order they may be deleted.
#include "api/PlixDataMgr.h"
#include "layout/PlixLimits.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixItemRegistry.h"
#include "support/PlixTest.h"

#include <QGraphicsScene>

#include <pthread.h>

namespace plix::test {
namespace {

class CardLife : public PlixTest { };

using WeakItems = std::vector<std::weak_ptr<PlixDataItem>>;

void collect(const PlixDataContainer& container, WeakItems& items)
{
    for (const auto& child : container.GetChildren()) {
        items.push_back(child);
        if (const auto box = std::dynamic_pointer_cast<PlixDataBox>(child))
            collect(*box->GetContainer(), items);
    }
}

// Every data item of a card, the bubble first.
WeakItems dataOf(PlixDataController* controller)
{
    const auto bubble = dynamic_cast<PlixDataMgr&>(*controller).GetBubble();
    WeakItems items = {bubble};
    for (const auto& zone : bubble->GetZones())
        collect(*zone.container, items);
    return items;
}

std::size_t alive(const WeakItems& items)
{
    std::size_t count = 0;
    for (const auto& item : items)
        count += item.expired() ? 0U : 1U;
    return count;
}

std::string nested(int depth)
{
    std::string contents = R"({"type": "text", "text": "a"})";
    for (int i = 0; i < depth; ++i)
        contents = box("vertical", contents);
    return contents;
}

const char kCard[] = R"({"type": "bubble",
    "header": {"type": "text", "text": "a"},
    "hero": {"type": "image"},
    "body": {"type": "box", "layout": "vertical", "contents": [
        {"type": "box", "layout": "horizontal", "contents": [
            {"type": "text", "text": "b"}, {"type": "icon"}, {"type": "separator"}]},
        {"type": "button"}, {"type": "spacer"}]},
    "footer": {"type": "box", "contents": [{"type": "filler"}]}})";
constexpr std::size_t kCardItems = 12;

TEST_F(CardLife, FreesDataThatWasNeverBuilt)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, kCard);
    const WeakItems items = dataOf(controller);
    ASSERT_EQ(items.size(), kCardItems);
    EXPECT_EQ(alive(items), kCardItems);
    Plix_Free(controller);
    EXPECT_EQ(alive(items), 0U);
}

TEST_F(CardLife, FreesDataOfTwoMessages)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, kCard);
    Plix_InitData(controller, kCard);
    Plix_InitData(controller, R"({"type": "bubble", "size": 5})");
    ignoreLog();
    const WeakItems items = dataOf(controller);
    EXPECT_EQ(items.size(), 2 * kCardItems - 1);
    Plix_Free(controller);
    EXPECT_EQ(alive(items), 0U);
}

TEST_F(CardLife, FreesDataOfABrokenMessage)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, bubbleWithBody(box("vertical", R"({"type": "text", "margin": 5},
        {"type": "box", "contents": [{"type": "box", "contents": 5}]})")));
    ignoreLog();
    const WeakItems items = dataOf(controller);
    ASSERT_EQ(items.size(), 5U);
    Plix_Free(controller);
    EXPECT_EQ(alive(items), 0U);
}

void* freeController(void* controller)
{
    Plix_Free(static_cast<PlixDataController*>(controller));
    return nullptr;
}

TEST_F(CardLife, FreesDeeplyNestedDataOnASmallStack)
{
    constexpr int kDepth = kMaximumNestedBoxes;
    PlixDataController* const controller = Plix_CreateController();
    EXPECT_EQ(Plix_InitData(controller, bubbleWithBody(nested(kDepth))), 0);
    const WeakItems items = dataOf(controller);
    ASSERT_EQ(items.size(), kDepth + 2U);

    pthread_attr_t attributes;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, 64 * 1024), 0);
    pthread_t thread;
    ASSERT_EQ(pthread_create(&thread, &attributes, &freeController, controller), 0);
    ASSERT_EQ(pthread_join(thread, nullptr), 0);
    pthread_attr_destroy(&attributes);
    EXPECT_EQ(alive(items), 0U);
}

TEST_F(CardLife, KeepsBuiltDataForever)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, kCard);
    const WeakItems items = dataOf(controller);
    delete Plix_CreateQGraphicsItem(controller);
    Plix_Free(controller);
    EXPECT_EQ(alive(items), kCardItems);
    const auto bubble = items.front().lock();
    EXPECT_EQ(PlixItemRegistry::GetInstance().Find(PlixItemRegistry::KeyOf(bubble.get())), bubble);
}

TEST_F(CardLife, KeepsDataThatIsReadAfterTheBuild)
{
    PlixDataController* const controller = Plix_CreateController();
    delete Plix_CreateQGraphicsItem(controller);
    Plix_InitData(controller, kCard);
    const WeakItems items = dataOf(controller);
    Plix_Free(controller);
    EXPECT_EQ(alive(items), kCardItems);
}

TEST_F(CardLife, TheItemMayOutliveItsController)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller,
                  bubbleWithBody(box("vertical", R"({"type": "text", "text": "a"})",
                                     R"("action": {"uri": "u"}, )")));
    const std::unique_ptr<QGraphicsItem> root(Plix_CreateQGraphicsItem(controller));
    Plix_Free(controller);
    QGraphicsItem* const box = root->childItems().at(0);
    EXPECT_TRUE(Plix_HasAction(box)) << "its data is still found";
    EXPECT_GT(root->boundingRect().height(), 0);
}

TEST_F(CardLife, TheSceneMayDeleteTheItem)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, kCard);
    {
        QGraphicsScene scene;
        scene.addItem(Plix_CreateQGraphicsItem(controller));
    }
    EXPECT_EQ(dynamic_cast<PlixDataMgr&>(*controller).GetRootItem(), nullptr);
    Plix_Free(controller);
}

TEST_F(CardLife, AControllerWorksAfterItsItemIsDeleted)
{
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, kCard);
    delete Plix_CreateQGraphicsItem(controller);

    EXPECT_EQ(Plix_ModifyHeight(controller, 500), 0);
    Plix_RefreshLayout(controller);
    EXPECT_EQ(Plix_SetBubbleBkColor(controller, "red"), 0);
    EXPECT_EQ(Plix_ResumeBubbleBkColor(controller), 0);
    EXPECT_EQ(Plix_SetHighLightText(controller, {"a"}), 0);
    EXPECT_EQ(Plix_InitSetFrom(controller, 1), 0);
    EXPECT_EQ(Plix_SetDpi(controller, 2), 0);
    EXPECT_EQ(Plix_SetDisplayParam(controller, PlixDisplayParam()), 0);
    Plix_SetClickCallBack(controller, nullptr, nullptr);
    Plix_SetDownloadCallBack(controller, nullptr, nullptr);
    EXPECT_EQ(Plix_SetMentionHandleCallback(controller, nullptr, nullptr), 0);
    EXPECT_EQ(Plix_SetBotMentionHandleCallback(controller, nullptr, nullptr), 0);
    EXPECT_EQ(Plix_InitData(controller, R"({"type": "bubble", "size": "nano"})"), 0);
    delete Plix_CreateQGraphicsItem(controller);
    Plix_Free(controller);
}

TEST_F(CardLife, ItemsOfTwoBuildsMayBeDeletedInAnyOrder)
{
    for (const bool firstFirst : {true, false}) {
        PlixDataController* const controller = Plix_CreateController();
        Plix_InitData(controller, kCard);
        QGraphicsItem* const first = Plix_CreateQGraphicsItem(controller);
        QGraphicsItem* const second = Plix_CreateQGraphicsItem(controller);
        delete (firstFirst ? first : second);
        EXPECT_EQ(dynamic_cast<PlixDataMgr&>(*controller).GetRootItem(),
                  firstFirst ? second : nullptr);
        Plix_ModifyHeight(controller, 700);
        Plix_RefreshLayout(controller);
        Plix_Free(controller);
        delete (firstFirst ? second : first);
    }
}

TEST_F(CardLife, CardsAreIndependent)
{
    TestCard first(kCard);
    {
        const TestCard second(kCard);
        EXPECT_NE(first.bubbleData(), second.bubbleData());
        EXPECT_NE(first.root()->data(256), second.root()->data(256));
    }
    EXPECT_EQ(Plix_ModifyHeight(first.controller(), 700), 0);
    EXPECT_EQ(first.root()->boundingRect().height(), 700);
}

} // namespace
} // namespace plix::test
