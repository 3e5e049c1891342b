// Clicks on mentions in a view.
#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "ui/text/PlixTextUI.h"

#include <QFontMetricsF>

#include <functional>

namespace plix::test {
namespace {

// A host that records its callbacks.
class MentionClick : public PlixTest {
protected:
    static std::string card(const std::string& boxMembers = {})
    {
        return bubbleWithBody(
            box("vertical", text(R"(Hi <m user=\"-7\">@Ann Lee</m> and <m bot=\"9\">@Bot</m>)"),
                boxMembers));
    }

    std::function<void(PlixDataController*)> setUp()
    {
        return [this](PlixDataController* controller) {
            PlixDisplayParam param;
            param.markupEnabled = true;
            Plix_SetDisplayParam(controller, param);
            Plix_SetMentionHandleCallback(
                controller,
                [](std::int64_t user, void* self) {
                    auto* host = static_cast<MentionClick*>(self);
                    host->users_.push_back(user);
                    if (host->onMention_)
                        host->onMention_();
                },
                this);
            Plix_SetBotMentionHandleCallback(
                controller,
                [](std::int64_t bot, void* self) {
                    static_cast<MentionClick*>(self)->bots_.push_back(bot);
                },
                this);
            Plix_SetClickCallBack(
                controller,
                [](PlixDataController*, ST_ACTION& action, void* self) {
                    static_cast<MentionClick*>(self)->uris_.push_back(action.uri);
                },
                this);
        };
    }

    // A point on the letters after `before`.
    static QPointF after(const char* before, PlixTextUI& item)
    {
        const QFontMetricsF metrics(item.font());
        const double x = metrics.horizontalAdvance(QString::fromLatin1(before)) + 8;
        return item.mapToScene(x, item.boundingRect().center().y());
    }

    std::vector<std::int64_t> users_;
    std::vector<std::int64_t> bots_;
    std::vector<std::string> uris_;
    std::function<void()> onMention_;
};

using Numbers = std::vector<std::int64_t>;

TEST_F(MentionClick, IsReportedOnceWithItsNumber)
{
    const TestCard shown(card(), setUp());
    auto* item = shown.ui<PlixTextUI>({0, 0});
    click(*shown.root(), after("Hi ", *item));
    EXPECT_EQ(users_, Numbers {-7});
    EXPECT_EQ(bots_, Numbers {});
    click(*shown.root(), after("Hi @Ann Lee and ", *item));
    EXPECT_EQ(users_, Numbers {-7});
    EXPECT_EQ(bots_, Numbers {9});
}

TEST_F(MentionClick, BesideAMentionIsNotReported)
{
    const TestCard shown(card(), setUp());
    auto* item = shown.ui<PlixTextUI>({0, 0});
    click(*shown.root(), after("", *item));
    click(*shown.root(), after("Hi @Ann Lee ", *item));
    click(*shown.root(), after("Hi ", *item), Qt::RightButton);
    EXPECT_EQ(users_, Numbers {});
    EXPECT_EQ(bots_, Numbers {});
}

TEST_F(MentionClick, InABoxWithAnActionIsAClickOnTheBox)
{
    const TestCard shown(card(R"("action": {"type": "uri", "uri": "here"},)"), setUp());
    click(*shown.root(), after("Hi ", *shown.ui<PlixTextUI>({0, 0})));
    EXPECT_EQ(users_, Numbers {});
    EXPECT_EQ(uris_, std::vector<std::string> {"here"});
}

TEST_F(MentionClick, MayEndTheCard)
{
    PlixDataController* const controller = Plix_CreateController();
    setUp()(controller);
    Plix_InitData(controller, card());
    QGraphicsItem* const root = Plix_CreateQGraphicsItem(controller);
    auto* item = dynamic_cast<PlixTextUI*>(root->childItems().at(0)->childItems().at(0));
    ASSERT_NE(item, nullptr);
    const QPointF place = after("Hi ", *item);
    bool isGone = false;
    onMention_ = [&] {
        delete item;
        isGone = true;
    };
    click(*root, place);
    EXPECT_TRUE(isGone);
    delete root;
    Plix_Free(controller);
}

} // namespace
} // namespace plix::test
