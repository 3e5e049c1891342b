// The parts of a card may be deleted in any order.
#include "api/PlixDataMgr.h"
#include "layout/YogaLayoutItem.h"
#include "support/Picture.h"
#include "support/PlixTest.h"
#include "ui/PlixBubbleUI.h"

#include <QGraphicsScene>

namespace plix::test {
namespace {

std::string card()
{
    return bubbleWithBody(
        box("vertical",
            text("one", R"("wrap": true,)") + "," + component("separator") + ","
                + box("horizontal", text("two") + "," + component("filler") + "," + text("three"),
                      R"("action": {"type": "uri", "uri": "https://a.example"},)")),
        R"("styles": {"body": {"separator": true}}, "header": )" + box("vertical", text("four"))
            + ",");
}

class CardEnd : public PlixTest {
protected:
    CardEnd()
        : controller(Plix_CreateController())
    {
        Plix_InitData(controller, card());
        root = Plix_CreateQGraphicsItem(controller);
    }

    PlixDataController* controller;
    QGraphicsItem* root;
};

TEST_F(CardEnd, MayDeleteTheItemFirst)
{
    delete root;
    EXPECT_EQ(Plix_ModifyHeight(controller, 900), 0);
    Plix_RefreshLayout(controller);
    Plix_SetBubbleBkColor(controller, "#FF0000");
    Plix_ResumeBubbleBkColor(controller);
    EXPECT_EQ(Plix_SetHighLightText(controller, {"one"}), 0);
    Plix_Free(controller);
}

TEST_F(CardEnd, MayFreeTheControllerFirst)
{
    Plix_Free(controller);
    EXPECT_EQ(root->childItems().size(), 3);
    EXPECT_EQ(Picture(*root).at({150, 2}), QColor(0xF1, 0xF3, 0xF7));
    delete root;
}

TEST_F(CardEnd, MayDeleteTheItemWithItsScene)
{
    {
        QGraphicsScene scene;
        scene.addItem(root);
    }
    EXPECT_EQ(Plix_ModifyHeight(controller, 900), 0);
    Plix_Free(controller);
}

TEST_F(CardEnd, MayDeletePartsOfTheCard)
{
    const double before = root->boundingRect().height();
    delete root->childItems()[0]; // the header
    EXPECT_EQ(Plix_ModifyHeight(controller, 0), 0);
    EXPECT_LT(root->boundingRect().height(), before);
    delete root->childItems()[0]->childItems()[1];
    Plix_RefreshLayout(controller);
    delete root;
    Plix_Free(controller);
}

TEST_F(CardEnd, MayDeleteTheBodyThatGrows)
{
    delete root->childItems()[1];
    EXPECT_EQ(Plix_ModifyHeight(controller, 900), -1);
    Plix_RefreshLayout(controller);
    EXPECT_EQ(Plix_ModifyHeight(controller, 0), 0);
    delete root;
    Plix_Free(controller);
}

TEST_F(CardEnd, MayFreeTheControllerOfACardThatWasNeverRead)
{
    PlixDataController* const empty = Plix_CreateController();
    PlixDataController* const unread = Plix_CreateController();
    QGraphicsItem* const item = Plix_CreateQGraphicsItem(unread);
    Plix_Free(empty);
    Plix_Free(unread);
    delete item;
    delete root;
    Plix_Free(controller);
}

TEST_F(CardEnd, MayDeleteTheBubbleBeforeOrAfterTheRootNode)
{
    auto layout = std::make_unique<YogaLayoutItem>(true);
    auto* bubble = new PlixBubbleUI(nullptr);
    layout->addChild(bubble);
    delete bubble;
    EXPECT_EQ(layout->childCount(), 0);
    layout->calculateLayout();

    PlixBubbleUI next(nullptr);
    layout->addChild(&next);
    layout.reset();
    EXPECT_EQ(next.YogaLayoutItem::parentItem(), nullptr);
    delete root;
    Plix_Free(controller);
}

} // namespace
} // namespace plix::test
