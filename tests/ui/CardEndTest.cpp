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
        : controller_(Plix_CreateController())
    {
        Plix_InitData(controller_, card());
        root_ = Plix_CreateQGraphicsItem(controller_);
    }

    PlixDataController* controller_;
    QGraphicsItem* root_;
};

TEST_F(CardEnd, MayDeleteTheItemFirst)
{
    delete root_;
    EXPECT_EQ(Plix_ModifyHeight(controller_, 900), 0);
    Plix_RefreshLayout(controller_);
    Plix_SetBubbleBkColor(controller_, "#FF0000");
    Plix_ResumeBubbleBkColor(controller_);
    EXPECT_EQ(Plix_SetHighLightText(controller_, {"one"}), 0);
    Plix_Free(controller_);
}

TEST_F(CardEnd, MayFreeTheControllerFirst)
{
    Plix_Free(controller_);
    EXPECT_EQ(root_->childItems().size(), 3);
    EXPECT_EQ(Picture(*root_).at({150, 2}), QColor(0xF1, 0xF3, 0xF7));
    delete root_;
}

TEST_F(CardEnd, MayDeleteTheItemWithItsScene)
{
    {
        QGraphicsScene scene;
        scene.addItem(root_);
    }
    EXPECT_EQ(Plix_ModifyHeight(controller_, 900), 0);
    Plix_Free(controller_);
}

TEST_F(CardEnd, MayDeletePartsOfTheCard)
{
    const double before = root_->boundingRect().height();
    delete root_->childItems()[0]; // the header
    EXPECT_EQ(Plix_ModifyHeight(controller_, 0), 0);
    EXPECT_LT(root_->boundingRect().height(), before);
    delete root_->childItems()[0]->childItems()[1];
    Plix_RefreshLayout(controller_);
    delete root_;
    Plix_Free(controller_);
}

TEST_F(CardEnd, MayDeleteTheBodyThatGrows)
{
    delete root_->childItems()[1];
    EXPECT_EQ(Plix_ModifyHeight(controller_, 900), -1);
    Plix_RefreshLayout(controller_);
    EXPECT_EQ(Plix_ModifyHeight(controller_, 0), 0);
    delete root_;
    Plix_Free(controller_);
}

TEST_F(CardEnd, MayFreeTheControllerOfACardThatWasNeverRead)
{
    PlixDataController* const empty = Plix_CreateController();
    PlixDataController* const unread = Plix_CreateController();
    QGraphicsItem* const item = Plix_CreateQGraphicsItem(unread);
    Plix_Free(empty);
    Plix_Free(unread);
    delete item;
    delete root_;
    Plix_Free(controller_);
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
    delete root_;
    Plix_Free(controller_);
}

} // namespace
} // namespace plix::test
