// Cards of the library when it is loaded at run time: what they show, and what the
// callbacks get. Includes only the public header of Plix.
#include "SharedLibrary.h"
#include "support/Mouse.h"

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QGraphicsWidget>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <memory>
#include <string>
#include <vector>

namespace plix::test {
namespace {

// Too long for the internal buffer of a std::string, so that one side frees memory
// that the other side has allocated.
const std::string kLong = "a text that is longer than the library's own room for short ones";

std::string bubble(const std::string& contents, const std::string& boxMembers = {})
{
    return R"({"type": "bubble", "size": "giga", "body": {"type": "box", "layout": "vertical", )"
        + boxMembers + R"("contents": [)" + contents + "]}}";
}

std::string text(const std::string& words)
{
    return R"({"type": "text", "text": ")" + words + R"("})";
}

// A host with one card at a time. Deletes the item before the controller.
class LoadedCard : public testing::Test {
protected:
    LoadedCard()
        : plix_(SharedLibrary(PLIX_LIBRARY).exports())
    {
        plix_.Plix_SetWiteLogCallback(
            [](const char* line) { ADD_FAILURE() << "logged: " << line; });
        plix_.Plix_SetCurrentLanguage("en");
        card_ = plix_.Plix_CreateController();
    }

    ~LoadedCard() override
    {
        delete item_;
        plix_.Plix_Free(card_);
        plix_.Plix_SetMultiLangGetCallback(nullptr);
    }

    void show(const std::string& json)
    {
        ASSERT_EQ(plix_.Plix_InitData(card_, json), 0);
        item_ = plix_.Plix_CreateQGraphicsItem(card_);
        ASSERT_NE(item_, nullptr);
    }

    QGraphicsItem* body() const { return item_->childItems().value(0); }

    double height() const { return item_->boundingRect().height(); }

    QRgb colourAt(const QPoint& place) const
    {
        QGraphicsScene scene;
        scene.addItem(item_);
        QImage image(item_->boundingRect().size().toSize(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        scene.render(&painter, image.rect(), image.rect());
        painter.end();
        scene.removeItem(item_);
        return image.pixel(place);
    }

    const HostExports plix_;
    PlixDataController* card_ = nullptr;
    QGraphicsItem* item_ = nullptr;
};

struct Click {
    PlixDataController* controller;
    ST_ACTION action;
};

TEST_F(LoadedCard, PassesEveryFieldOfAnAction)
{
    std::vector<Click> clicks;
    plix_.Plix_SetClickCallBack(
        card_,
        [](PlixDataController* controller, ST_ACTION& action, void* userData) {
            static_cast<std::vector<Click>*>(userData)->push_back({controller, action});
            // The host may change its copy.
            action.uri = kLong + action.uri;
            action.i18nTexts.texts.clear();
        },
        &clicks);
    show(bubble("",
                R"("height": "60px", "action": {"type": "uri", "label": "label",
        "text": ")" + kLong
                    + R"(", "displayText": "displayText", "uri": "uri", "pcUri": "pcUri",
        "webUri": "webUri", "appUri": "appUri", "androidUri": "androidUri", "iosUri": "iosUri",
        "pcAuthUri": "pcAuthUri", "copyText": "copyText", "data": "data", "mode": "mode",
        "initial": "initial", "max": "max", "min": "min", "i18nLabels": {"ko": "label ko"},
        "i18nTexts": {"en": "text en", "ja": "text ja"},
        "i18nDisplayTexts": {"default": "display text"}},)"));
    click(*item_, {30, 30});
    click(*item_, {30, 30});

    ASSERT_EQ(clicks.size(), 2U);
    for (const Click& call : clicks) {
        const ST_ACTION& action = call.action;
        EXPECT_EQ(call.controller, card_);
        const std::vector<std::string> fields {
            action.type,      action.label,    action.text,   action.displayText, action.uri,
            action.pcUri,     action.webUri,   action.appUri, action.androidUri,  action.iosUri,
            action.pcAuthUri, action.copyText, action.data,   action.mode,        action.initial,
            action.max,       action.min};
        const std::vector<std::string> expected {
            "uri",    "label",  kLong,        "displayText", "uri",       "pcUri",
            "webUri", "appUri", "androidUri", "iosUri",      "pcAuthUri", "copyText",
            "data",   "mode",   "initial",    "max",         "min"};
        EXPECT_EQ(fields, expected);
        using Texts = std::map<std::string, std::string>;
        EXPECT_EQ(action.i18nLabels.texts, (Texts {{"ko", "label ko"}}));
        EXPECT_EQ(action.i18nTexts.texts, (Texts {{"en", "text en"}, {"ja", "text ja"}}));
        EXPECT_EQ(action.i18nDisplayTexts.texts, (Texts {{"default", "display text"}}));
    }
}

TEST_F(LoadedCard, PassesEachCallbackItsOwnUserData)
{
    using Numbers = std::vector<std::int64_t>;
    Numbers users;
    Numbers bots;
    const auto append = [](std::int64_t number, void* userData) {
        static_cast<Numbers*>(userData)->push_back(number);
    };
    PlixDisplayParam param;
    param.markupEnabled = true;
    plix_.Plix_SetDisplayParam(card_, param);
    plix_.Plix_SetMentionHandleCallback(card_, append, &users);
    plix_.Plix_SetBotMentionHandleCallback(card_, append, &bots);
    show(bubble(text(R"(<m user=\"-9007199254740993\">@Ann Lee</m>)") + ","
                + text(R"(<m bot=\"9223372036854775807\">@Bot</m>)")));

    for (int i = 0; i < 2; ++i) {
        const QRectF place = body()->childItems().at(i)->sceneBoundingRect();
        click(*item_, {place.left() + 8, place.center().y()});
    }
    EXPECT_EQ(users, Numbers {-9007199254740993});
    EXPECT_EQ(bots, Numbers {9223372036854775807});
}

TEST_F(LoadedCard, ShowsTheWordingThatTheHostReturns)
{
    plix_.Plix_SetMultiLangGetCallback([](const char* key) { return kLong + ": " + key; });
    show(bubble(text("for phones"), R"("action": {"type": "uri", "appUri": "app://here"},)"));
    QGraphicsObject* const shown = body()->childItems().at(0)->toGraphicsObject();
    ASSERT_NE(shown, nullptr);
    EXPECT_EQ(shown->property("plainText").toString().toStdString(),
              kLong + ": chat_room_check_on_mobile");
}

TEST_F(LoadedCard, ShowsTheFileThatTheHostReturns)
{
    // A name that no single-byte encoding can represent.
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral(u"Bild 그림 \u00FC.png"));
    QImage picture(8, 8, QImage::Format_RGB32);
    picture.fill(QColor(0x12, 0x34, 0x56));
    ASSERT_TRUE(picture.save(path, "png"));

    struct Downloads {
        std::string path;
        std::vector<std::string> urls;
        PlixDataController* controller = nullptr;
    } downloads {path.toStdString(), {}};
    plix_.Plix_SetDownloadCallBack(
        card_,
        [](PlixDataController* controller, const std::string& url, void* userData) {
            auto* const calls = static_cast<Downloads*>(userData);
            calls->controller = controller;
            calls->urls.push_back(url);
            return calls->path;
        },
        &downloads);
    const std::string url = "https://pictures.example/" + std::string(300, 'a') + ".png";
    show(bubble(R"({"type": "image", "url": ")" + url + R"(", "size": "full"})"));

    EXPECT_EQ(downloads.urls, std::vector<std::string> {url});
    EXPECT_EQ(downloads.controller, card_);
    const QRectF place = body()->childItems().at(0)->sceneBoundingRect();
    EXPECT_EQ(colourAt(place.center().toPoint()), 0xFF123456);
}

TEST_F(LoadedCard, FindsItsItemsWithActions)
{
    show(bubble(text("words") + R"(, {"type": "text", "text": "more", "action": {"type": "uri",
        "uri": "here"}})"));
    EXPECT_FALSE(plix_.Plix_HasAction(nullptr));
    QGraphicsRectItem foreign;
    EXPECT_FALSE(plix_.Plix_HasAction(&foreign));
    QGraphicsWidget foreignWidget;
    EXPECT_FALSE(plix_.Plix_HasAction(&foreignWidget));
    EXPECT_FALSE(plix_.Plix_HasAction(body()->childItems().value(0)));
    EXPECT_TRUE(plix_.Plix_HasAction(body()->childItems().value(1)));
}

TEST_F(LoadedCard, HighlightsListsOfWords)
{
    show(bubble(text("Dinner at eight, as it was last week")));
    EXPECT_EQ(plix_.Plix_SetHighLightText(card_, {kLong, "EIGHT"}), 1);
    EXPECT_EQ(plix_.Plix_SetHighLightText(card_, {kLong, "nine"}), -1);
    EXPECT_EQ(plix_.Plix_SetHighLightText(card_, {}), -1);
}

TEST_F(LoadedCard, GrowsAndIsLaidOutAgain)
{
    show(bubble(text("words")));
    const double before = height();
    EXPECT_EQ(plix_.Plix_ModifyHeight(card_, static_cast<int>(before) + 100), 0);
    EXPECT_GE(height(), before + 99);
    plix_.Plix_RefreshLayout(card_);
    EXPECT_GT(height(), 0);
}

TEST_F(LoadedCard, SetsAndResumesTheBackgroundColour)
{
    plix_.Plix_InitSetFrom(card_, 1);
    plix_.Plix_SetDpi(card_, 2);
    show(bubble(text("words")));
    const QPoint corner(30, 2);
    EXPECT_EQ(colourAt(corner), 0xFFC0EAFC);
    EXPECT_EQ(plix_.Plix_SetBubbleBkColor(card_, "#112233"), 0);
    EXPECT_EQ(colourAt(corner), 0xFF112233);
    EXPECT_EQ(plix_.Plix_ResumeBubbleBkColor(card_), 0);
    EXPECT_EQ(colourAt(corner), 0xFFC0EAFC);
}

TEST_F(LoadedCard, ShowsTheLanguageThatIsSet)
{
    plix_.Plix_SetCurrentLanguage("ko");
    show(bubble(R"({"type": "text", "text": "short", "wrap": true, "i18nTexts": {"ko": ")" + kLong
                + " " + kLong + " " + kLong + R"("}})"));
    const double korean = height();
    PlixDataController* const other = plix_.Plix_CreateController();
    plix_.Plix_SetCurrentLanguage("en");
    ASSERT_EQ(plix_.Plix_InitData(other, bubble(text("short"))), 0);
    const std::unique_ptr<QGraphicsItem> shown(plix_.Plix_CreateQGraphicsItem(other));
    EXPECT_GT(korean, shown->boundingRect().height());
    plix_.Plix_Free(other);
}

TEST_F(LoadedCard, MayBeFreedBeforeOrAfterItsItem)
{
    for (const bool itemFirst : {true, false}) {
        PlixDataController* const card = plix_.Plix_CreateController();
        ASSERT_EQ(plix_.Plix_InitData(card, bubble(text(kLong))), 0);
        QGraphicsItem* const item = plix_.Plix_CreateQGraphicsItem(card);
        ASSERT_NE(item, nullptr);
        if (itemFirst)
            delete item;
        plix_.Plix_Free(card);
        if (!itemFirst)
            delete item;
    }
}

} // namespace
} // namespace plix::test
