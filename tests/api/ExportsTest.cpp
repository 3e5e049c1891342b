// The exports, with good and bad handles and with graphics items.
#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "ui/text/PlixTextUI.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsWidget>
#include <QImage>
#include <QPainter>

namespace plix::test {
namespace {

class Exports : public PlixTest { };

void expectRefused(PlixDataController* handle)
{
    EXPECT_EQ(Plix_CreateQGraphicsItem(handle), nullptr);
    EXPECT_EQ(Plix_InitData(handle, R"({"type": "bubble", "size": 5})"), 0);
    EXPECT_EQ(Plix_InitSetFrom(handle, 1), 0);
    EXPECT_EQ(Plix_ModifyHeight(handle, 500), 0);
    Plix_RefreshLayout(handle);
    EXPECT_EQ(Plix_ResumeBubbleBkColor(handle), 0);
    EXPECT_EQ(Plix_SetBotMentionHandleCallback(handle, nullptr, nullptr), 0);
    EXPECT_EQ(Plix_SetBubbleBkColor(handle, "red"), 0);
    Plix_SetClickCallBack(handle, nullptr, nullptr);
    EXPECT_EQ(Plix_SetDisplayParam(handle, PlixDisplayParam()), 0);
    Plix_SetDownloadCallBack(handle, nullptr, nullptr);
    EXPECT_EQ(Plix_SetDpi(handle, 2), 0);
    EXPECT_EQ(Plix_SetHighLightText(handle, {"word"}), -1);
    EXPECT_EQ(Plix_SetHighLightText(handle, {}), -1);
    EXPECT_EQ(Plix_SetMentionHandleCallback(handle, nullptr, nullptr), 0);
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(Exports, NullIsABadHandle)
{
    expectRefused(nullptr);
    Plix_Free(nullptr);
}

class Foreign : public PlixDataController {
public:
    explicit Foreign(bool* destroyed)
        : destroyed_(destroyed)
    {
    }
    ~Foreign() override { *destroyed_ = true; }

private:
    bool* destroyed_;
};

TEST_F(Exports, AControllerOfTheHostIsABadHandleButIsFreed)
{
    bool destroyed = false;
    auto* const foreign = new Foreign(&destroyed);
    expectRefused(foreign);
    EXPECT_FALSE(destroyed);
    Plix_Free(foreign);
    EXPECT_TRUE(destroyed);
}

TEST_F(Exports, FunctionsDoNothingBeforeTheBuild)
{
    PlixDataController* const card = Plix_CreateController();
    EXPECT_EQ(Plix_InitData(card, bubbleWithBody(R"({"type": "text", "text": "word"})")), 0);
    EXPECT_EQ(Plix_ModifyHeight(card, 500), 0);
    Plix_RefreshLayout(card);
    EXPECT_EQ(Plix_SetBubbleBkColor(card, "red"), 0);
    EXPECT_EQ(Plix_ResumeBubbleBkColor(card), 0);
    EXPECT_EQ(Plix_SetHighLightText(card, {"word"}), 0);
    Plix_Free(card);
}

TEST_F(Exports, SettersReturnZero)
{
    const TestCard card(bubbleWithBody(R"({"type": "text"})"));
    PlixDataController* const handle = card.controller();
    EXPECT_EQ(Plix_InitSetFrom(handle, 7), 0);
    EXPECT_EQ(Plix_SetDpi(handle, 3), 0);
    EXPECT_EQ(Plix_SetDisplayParam(handle, PlixDisplayParam()), 0);
    EXPECT_EQ(Plix_SetBubbleBkColor(handle, "no colour"), 0);
    EXPECT_EQ(Plix_ResumeBubbleBkColor(handle), 0);
    EXPECT_EQ(Plix_SetMentionHandleCallback(handle, nullptr, nullptr), 0);
    EXPECT_EQ(Plix_SetBotMentionHandleCallback(handle, nullptr, nullptr), 0);
}

TEST_F(Exports, ACardWithoutDataIsAnEmptyBubble)
{
    PlixDataController* const card = Plix_CreateController();
    QGraphicsItem* const item = Plix_CreateQGraphicsItem(card);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->parentItem(), nullptr);
    EXPECT_TRUE(item->childItems().isEmpty());
    EXPECT_EQ(item->boundingRect().width(), 300);
    EXPECT_EQ(Plix_ModifyHeight(card, 100), -1) << "there is no body to grow";
    EXPECT_EQ(Plix_SetHighLightText(card, {"word"}), -1);
    delete item;
    Plix_Free(card);
}

TEST_F(Exports, ItemsOfTheHostHaveNoAction)
{
    EXPECT_FALSE(Plix_HasAction(nullptr));
    QGraphicsRectItem rect;
    EXPECT_FALSE(Plix_HasAction(&rect));
    QGraphicsWidget widget;
    EXPECT_FALSE(Plix_HasAction(&widget));
}

// The colour in the middle of a card.
QColor shownColor(const TestCard& card)
{
    QGraphicsScene scene;
    scene.addItem(card.root());
    const QRectF area = card.root()->sceneBoundingRect();
    QImage image(area.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    scene.render(&painter, QRectF(), area);
    painter.end();
    scene.removeItem(card.root());
    return image.pixelColor(image.rect().center());
}

TEST_F(Exports, TheSenderSelectsTheBubblesBackground)
{
    const struct {
        int from;
        const char* color;
    } rows[] = {{0, "#f1f3f7"}, {1, "#c0eafc"}, {2, "#f1f3f7"}, {-1, "#f1f3f7"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.from);
        const TestCard card(
            bubbleWithBody(box("vertical", "", R"("height": "60px", )")),
            [&](PlixDataController* handle) { Plix_InitSetFrom(handle, row.from); });
        EXPECT_EQ(shownColor(card).name().toStdString(), row.color);
        Plix_SetBubbleBkColor(card.controller(), "#ff0000");
        EXPECT_EQ(shownColor(card).name(), QStringLiteral("#ff0000"));
        Plix_ResumeBubbleBkColor(card.controller());
        EXPECT_EQ(shownColor(card).name().toStdString(), row.color);
    }
}

TEST_F(Exports, ACardWithoutCallbacksIsShownAndClicksDoNothing)
{
    const TestCard card(R"({"type": "bubble", "body": {"type": "box", "layout": "vertical",
        "action": {"type": "uri", "uri": "u"}, "contents": [
            {"type": "text", "text": "word", "action": {"type": "message", "text": "t"}},
            {"type": "image", "url": "https://example.com/a.png"},
            {"type": "icon", "url": "https://example.com/b.png"}]}})");
    ASSERT_NE(card.root(), nullptr);
    EXPECT_GT(card.root()->boundingRect().height(), 0);
    EXPECT_TRUE(shownColor(card).isValid());
    for (const QGraphicsItem* item : {card.item({0}), card.item({0, 0})})
        click(*card.root(), item->sceneBoundingRect().center());
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(Exports, TheLanguageIsReadWhenACardIsBuilt)
{
    const std::string json = bubbleWithBody(R"({"type": "text", "text": "plain",
        "i18nTexts": {"en": "english", "ko": "korean", "default": "any"}})");
    const struct {
        const char* language;
        const char* shown;
    } rows[] = {{"en", "english"}, {"ko", "korean"}, {"fr", "any"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.language);
        Plix_SetCurrentLanguage(row.language);
        const TestCard card(json);
        EXPECT_EQ(card.ui<PlixTextUI>({0})->toPlainText().toStdString(), row.shown);
    }
}

} // namespace
} // namespace plix::test
