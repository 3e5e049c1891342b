// Builds that end early: what is said, and that nothing is left behind.
#include "support/PlixTest.h"
#include "ui/text/PlixTextUI.h"

#include <stdexcept>

namespace plix::test {
namespace {

// A text that only a mobile device can serve asks the host for its wording
// while it is built.
class FailingBuild : public PlixTest {
protected:
    FailingBuild()
        : card_(Plix_CreateController())
    {
        Plix_InitData(card_, bubbleWithBody(box("vertical", R"(
            {"type": "text", "text": "before"},
            {"type": "text", "text": "a", "action": {"type": "uri", "appUri": "a"}})")));
    }
    ~FailingBuild() override { Plix_Free(card_); }

    PlixDataController* const card_;
};

TEST_F(FailingBuild, IsLoggedAndGivesNoItem)
{
    Plix_SetMultiLangGetCallback(
        [](const char*) -> std::string { throw std::runtime_error("out of words"); });
    EXPECT_EQ(Plix_CreateQGraphicsItem(card_), nullptr);
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. out of words");
    EXPECT_EQ(pendingLogLines(), 0);
    EXPECT_EQ(Plix_ModifyHeight(card_, 100), 0);
    EXPECT_EQ(Plix_SetHighLightText(card_, {"before"}), 0);
    Plix_RefreshLayout(card_);
}

TEST_F(FailingBuild, WithoutAReasonIsLoggedAsTheBarePrefix)
{
    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw std::runtime_error(""); });
    EXPECT_EQ(Plix_CreateQGraphicsItem(card_), nullptr);
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. ");
}

TEST_F(FailingBuild, EndsAtTheBoundaryWhateverIsThrown)
{
    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw 5; });
    QGraphicsItem* item = nullptr;
    EXPECT_NO_THROW(item = Plix_CreateQGraphicsItem(card_));
    EXPECT_EQ(item, nullptr);
}

TEST_F(FailingBuild, GivesNoItemEvenAfterOneThatSucceeded)
{
    Plix_SetMultiLangGetCallback([](const char* key) { return std::string(key); });
    const std::unique_ptr<QGraphicsItem> first(Plix_CreateQGraphicsItem(card_));
    ASSERT_NE(first, nullptr);
    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw std::runtime_error("x"); });
    EXPECT_EQ(Plix_CreateQGraphicsItem(card_), nullptr);
    ignoreLog();
}

TEST_F(FailingBuild, CanBeFollowedByAnother)
{
    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw std::runtime_error("x"); });
    EXPECT_EQ(Plix_CreateQGraphicsItem(card_), nullptr);
    ignoreLog();
    Plix_SetMultiLangGetCallback([](const char* key) { return std::string(key); });
    const std::unique_ptr<QGraphicsItem> item(Plix_CreateQGraphicsItem(card_));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->boundingRect().width(), 300);
    const auto* const text =
        dynamic_cast<PlixTextUI*>(item->childItems().at(0)->childItems().at(1));
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->toPlainText(), QStringLiteral("chat_room_check_on_mobile"));
}

} // namespace
} // namespace plix::test
