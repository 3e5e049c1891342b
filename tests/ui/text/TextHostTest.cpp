// Signals and callbacks between a text and its host.
#include "ui/text/PlixTextUI.h"

#include "api/PlixDataMgr.h"
#include "support/FontFamilyHost.h"
#include "support/PlixTest.h"

#include <QMetaMethod>

#include <cmath>

namespace plix::test {
namespace {

constexpr qint64 kUser = 0x123456789ABC;

std::string oneText(const std::string& more = {})
{
    return bubbleWithBody(box("vertical", text("words", more)));
}

using TextMeta = PlixTest;

TEST_F(TextMeta, CastsToAllItsBaseClasses)
{
    PlixTextUI item(nullptr, nullptr, {});
    EXPECT_EQ(item.qt_metacast("PlixTextUI"), static_cast<void*>(&item));
    EXPECT_EQ(item.qt_metacast("YogaLayoutItem"),
              static_cast<void*>(static_cast<YogaLayoutItem*>(&item)));
    EXPECT_EQ(item.qt_metacast("PlixBaseUI"), static_cast<void*>(static_cast<PlixBaseUI*>(&item)));
    EXPECT_EQ(item.qt_metacast("TextItem"), static_cast<void*>(static_cast<TextItem*>(&item)));
    EXPECT_NE(item.qt_metacast("QGraphicsTextItem"), nullptr);
    EXPECT_EQ(item.qt_metacast("PlixBoxUI"), nullptr);
    EXPECT_EQ(item.qt_metacast(nullptr), nullptr);
}

TEST_F(TextMeta, HasItsSlotsInOrder)
{
    const QMetaObject& meta = PlixTextUI::staticMetaObject;
    ASSERT_EQ(meta.methodCount() - meta.methodOffset(), 3);
    // moc writes qint64 as qlonglong.
    const char* const signatures[] = {"OnMentionClicked(qlonglong)",
                                      "OnBotMentionClicked(qlonglong)", "OnFontChanged()"};
    for (int i = 0; i < 3; ++i) {
        const QMetaMethod method = meta.method(meta.methodOffset() + i);
        EXPECT_EQ(method.methodType(), QMetaMethod::Slot);
        EXPECT_EQ(method.methodSignature(), QByteArray(signatures[i]));
    }
}

// ----- Mentions

struct Mentions {
    std::vector<std::int64_t> users;
    std::vector<std::int64_t> bots;

    void listenTo(PlixDataController* controller)
    {
        Plix_SetMentionHandleCallback(
            controller,
            [](std::int64_t user, void* self) {
                static_cast<Mentions*>(self)->users.push_back(user);
            },
            this);
        Plix_SetBotMentionHandleCallback(
            controller,
            [](std::int64_t bot, void* self) { static_cast<Mentions*>(self)->bots.push_back(bot); },
            this);
    }
};

using Numbers = std::vector<std::int64_t>;
using TextMentions = PlixTest;

TEST_F(TextMentions, AreReportedToTheHost)
{
    const TestCard card(oneText());
    Mentions mentions;
    mentions.listenTo(card.controller());
    auto* item = card.ui<PlixTextUI>({0, 0});
    Q_EMIT item->MentionClicked(kUser);
    EXPECT_EQ(mentions.users, Numbers {kUser});
    EXPECT_TRUE(mentions.bots.empty());
    Q_EMIT item->BotMentionClicked(-7);
    EXPECT_EQ(mentions.users, Numbers {kUser});
    EXPECT_EQ(mentions.bots, Numbers {-7});
}

TEST_F(TextMentions, AreIgnoredWithoutACallback)
{
    const TestCard card(oneText());
    auto* item = card.ui<PlixTextUI>({0, 0});
    Q_EMIT item->MentionClicked(kUser);
    Q_EMIT item->BotMentionClicked(kUser);
    Mentions mentions;
    mentions.listenTo(card.controller());
    Plix_SetMentionHandleCallback(card.controller(), nullptr, nullptr);
    Q_EMIT item->MentionClicked(kUser);
    EXPECT_TRUE(mentions.users.empty());
}

TEST_F(TextMentions, AreIgnoredWithoutAnOwner)
{
    const TestCard card(oneText());
    Mentions mentions;
    mentions.listenTo(card.controller());
    auto* item = card.ui<PlixTextUI>({0, 0});
    item->SetOwner(nullptr);
    Q_EMIT item->MentionClicked(kUser);
    Q_EMIT item->BotMentionClicked(kUser);
    EXPECT_TRUE(mentions.users.empty());
    EXPECT_TRUE(mentions.bots.empty());
}

TEST_F(TextMentions, AreIgnoredWithAControllerOfTheHostsOwn)
{
    class OtherController : public PlixDataController { };
    OtherController other;
    PlixTextUI item(nullptr, nullptr, {});
    item.SetOwner(&other);
    Q_EMIT item.MentionClicked(kUser);
    Q_EMIT item.BotMentionClicked(kUser);
    EXPECT_EQ(item.GetOwner(), &other);
}

// ----- Fonts

class TextFontFamily : public PlixTest {
protected:
    // Calls the slot as the application does.
    static void changeFont(PlixTextUI& item)
    {
        EXPECT_TRUE(QMetaObject::invokeMethod(&item, "OnFontChanged"));
    }

    FontFamilyHost host_;
};

TEST_F(TextFontFamily, IsAllThatOnFontChangedSets)
{
    const TestCard card(oneText(R"("weight": "bold", "size": "xl",)"));
    auto* item = card.ui<PlixTextUI>({0, 0});
    host_.switchFamily();
    EXPECT_NE(item->font().family(), host_.family) << "not before the slot is called";
    changeFont(*item);
    EXPECT_EQ(item->font().family(), host_.family);
    EXPECT_EQ(item->font().pixelSize(), 22);
    EXPECT_EQ(item->font().weight(), 75);
}

TEST_F(TextFontFamily, ChangesTheHeightInTheNextLayout)
{
    const std::string words = "one two three four five six seven eight nine ten";
    const TestCard card(bubbleWithBody(box("vertical", text(words, R"("wrap": true,)"))));
    auto* item = card.ui<PlixTextUI>({0, 0});
    const double before = item->YogaLayoutItem::geometry().height();
    host_.switchFamily();
    changeFont(*item);
    Plix_RefreshLayout(card.controller());
    const double after = item->YogaLayoutItem::geometry().height();
    EXPECT_NE(after, before);
    EXPECT_EQ(after, std::trunc(item->boundingRect().height()));
}

TEST_F(TextFontFamily, IsSetOnASignalOfTheManager)
{
    const std::string words = "one two three four five six seven eight nine ten";
    const TestCard card(bubbleWithBody(box("vertical", text(words, R"("wrap": true,)"))));
    auto* item = card.ui<PlixTextUI>({0, 0});
    const double before = card.root()->boundingRect().height();
    host_.changeFamily();
    EXPECT_EQ(item->font().family(), host_.family);
    EXPECT_EQ(card.root()->boundingRect().height(), before);
    Plix_ModifyHeight(card.controller(), 0);
    EXPECT_GT(card.root()->boundingRect().height(), before);
}

TEST_F(TextFontFamily, DoesNotChangeWhileFontBindingIsOff)
{
    const TestCard card(oneText());
    auto* item = card.ui<PlixTextUI>({0, 0});
    const QFont before = item->font();
    item->SetUseFontBonding(false);
    host_.switchFamily();
    changeFont(*item);
    EXPECT_EQ(item->font(), before);
}

TEST_F(TextFontFamily, DoesNotChangeWithoutASupportObject)
{
    const TestCard card(oneText());
    auto* item = card.ui<PlixTextUI>({0, 0});
    const QFont before = item->font();
    Plix_SetKestroControlSupport(nullptr);
    changeFont(*item);
    EXPECT_EQ(item->font(), before);
}

} // namespace
} // namespace plix::test
