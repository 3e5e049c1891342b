// What a build logs, leaves out and returns if something throws during it.
#include "support/PlixTest.h"
#include "ui/text/PlixTextUI.h"

#include <QApplication>
#include <QEvent>
#include <QGraphicsWidget>

#include <stdexcept>

namespace plix::test {
namespace {

// A text whose action opens mobile apps only calls the host for its wording while it
// is built.
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

    // Builds, and expects a whole card whose second text is this.
    void expectCardWith(const QString& wording)
    {
        const std::unique_ptr<QGraphicsItem> item(Plix_CreateQGraphicsItem(card_));
        ASSERT_NE(item, nullptr);
        const QList<QGraphicsItem*> texts = item->childItems().at(0)->childItems();
        ASSERT_EQ(texts.size(), 2);
        EXPECT_EQ(dynamic_cast<PlixTextUI&>(*texts[0]).toPlainText(), QStringLiteral("before"));
        EXPECT_EQ(dynamic_cast<PlixTextUI&>(*texts[1]).toPlainText(), wording);
    }

    PlixDataController* const card_;
};

TEST_F(FailingBuild, IsLoggedWithTheReason)
{
    Plix_SetMultiLangGetCallback(
        [](const char*) -> std::string { throw std::runtime_error("out of words"); });
    expectCardWith(QString());
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. out of words");
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(FailingBuild, WithoutAReasonIsLoggedAsThePrefixOnly)
{
    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw std::runtime_error(""); });
    expectCardWith(QString());
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. ");

    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw 5; });
    expectCardWith(QString());
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. ");
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(FailingBuild, IsLoggedOnOneLine)
{
    Plix_SetMultiLangGetCallback([](const char*) -> std::string {
        throw std::runtime_error("one\ncall PlixDataMgr::CreateUI failed. two");
    });
    expectCardWith(QString());
    EXPECT_EQ(takeLogLine(),
              "call PlixDataMgr::CreateUI failed. "
              "one\\ncall PlixDataMgr::CreateUI failed. two");
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(FailingBuild, CanBeFollowedByASuccessfulOne)
{
    Plix_SetMultiLangGetCallback([](const char*) -> std::string { throw std::runtime_error("x"); });
    expectCardWith(QString());
    ignoreLog();
    Plix_SetMultiLangGetCallback([](const char* key) { return std::string(key); });
    expectCardWith(QStringLiteral("chat_room_check_on_mobile"));
}

// An application whose event filter throws when the first item of a card is resized.
template <typename Thrown> class ThrowingApplication : public QObject {
public:
    explicit ThrowingApplication(Thrown thrown)
        : thrown_(std::move(thrown))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        if (event->type() == QEvent::GraphicsSceneResize
            && qobject_cast<QGraphicsWidget*>(receiver))
            throw thrown_;
        return false;
    }

private:
    Thrown thrown_;
};

TEST_F(FailingBuild, ReturnsThePartialItem)
{
    const ThrowingApplication application(std::runtime_error("the application's"));
    const std::unique_ptr<QGraphicsItem> item(Plix_CreateQGraphicsItem(card_));
    EXPECT_NE(item, nullptr);
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. the application's");
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(FailingBuild, ReturnsThePartialItemAfterAnyException)
{
    const ThrowingApplication application(5);
    const std::unique_ptr<QGraphicsItem> item(Plix_CreateQGraphicsItem(card_));
    EXPECT_NE(item, nullptr);
    EXPECT_EQ(takeLogLine(), "call PlixDataMgr::CreateUI failed. ");
    EXPECT_EQ(pendingLogLines(), 0);
}

} // namespace
} // namespace plix::test
