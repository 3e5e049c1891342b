// The window of "plix view": what its user can set, and what the card tells its host.
#include "tools/view/ViewFixture.h"

#if defined(PLIX_HAS_NETWORK)
#include "PictureServer.h"
#endif

#include <QtTest>
#include <QtWidgets>

namespace plix::test {
namespace {

using namespace tool;

class ViewSettingsOfUser : public View {
protected:
    void choose(const char* label, const QString& text)
    {
        dynamic_cast<QComboBox&>(control(QLatin1String(label))).setCurrentText(text);
    }

    void write(const char* label, const QString& text)
    {
        auto& line = dynamic_cast<QLineEdit&>(control(QLatin1String(label)));
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
    }

    void setNumber(const char* label, int number)
    {
        dynamic_cast<QSpinBox&>(control(QLatin1String(label))).setValue(number);
    }

    void toggle(const char* label)
    {
        QTest::keyClick(&control(QLatin1String(label)), Qt::Key_Space);
    }

    QRectF cardRect() { return view().card()->sceneBoundingRect(); }

    QColor colorOfCard()
    {
        return shown().pixelColor(view().mapFromScene(cardRect().topLeft() + QPointF(40, 3)));
    }
};

TEST_F(ViewSettingsOfUser, ChangeTheLanguage)
{
    showCard(cardWith(QStringLiteral(
        R"({"type": "text", "text": "one", "i18nTexts": {"ko": "하나", "en": "one"}})")));
    choose("Language", QStringLiteral("ko"));
    EXPECT_EQ(shownText(), QStringLiteral("하나"));
}

TEST_F(ViewSettingsOfUser, ChangeTheSenderAndTheColour)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    EXPECT_EQ(colorOfCard(), QColor(0xF1, 0xF3, 0xF7));
    choose("Sender", QStringLiteral("The user"));
    EXPECT_EQ(colorOfCard(), QColor(0xC0, 0xEA, 0xFC));
    const QGraphicsObject* const card = view().card();
    write("Bubble colour", QStringLiteral("tomato"));
    EXPECT_EQ(colorOfCard(), QColor(0xFF, 0x63, 0x47));
    write("Bubble colour", QStringLiteral("tomat"));
    EXPECT_EQ(colorOfCard(), QColor(0xC0, 0xEA, 0xFC)) << "no colour";
    EXPECT_EQ(view().card(), card) << "this needs no other card";
}

TEST_F(ViewSettingsOfUser, ChangeTheHeight)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    const double before = cardRect().height();
    setNumber("Minimum height", 300);
    EXPECT_EQ(cardRect().height(), 300);
    setNumber("Minimum height", 0);
    EXPECT_EQ(cardRect().height(), before);
}

TEST_F(ViewSettingsOfUser, HighlightWords)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch is ready"))));
    const QImage before = shown();
    const QGraphicsObject* const card = view().card();
    write("Highlight", QStringLiteral("ready"));
    EXPECT_NE(shown(), before);
    write("Highlight", QStringLiteral("nothing"));
    EXPECT_EQ(shown(), before);
    EXPECT_EQ(view().card(), card) << "this needs no other card";
}

TEST_F(ViewSettingsOfUser, ChangeTheFont)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    const auto family = [this] {
        return itemOf(QStringLiteral("Lunch"))->property("font").value<QFont>().family();
    };
    const QString before = family();
    choose("Font", QStringLiteral("Noto Sans CJK SC"));
    EXPECT_EQ(family(), QStringLiteral("Noto Sans CJK SC"));
    choose("Font", QStringLiteral("That of the application"));
    EXPECT_EQ(family(), before);
}

TEST_F(ViewSettingsOfUser, ChangeHowTextsAreRead)
{
    showCard(cardWith(textItem(QStringLiteral(R"(Hi <m user=\"7\">Ann</m>)"))));
    EXPECT_TRUE(shownText().contains(QStringLiteral("<m")));
    toggle("Mention and emoji markup");
    EXPECT_FALSE(shownText().contains(QStringLiteral("<m"))) << shownText().toStdString();
}

TEST_F(ViewSettingsOfUser, ChangeHowLinesBreak)
{
    showCard(
        cardWith(textItem(QStringLiteral("one two three four five six seven eight nine ten"))));
    const double before = cardRect().height();
    choose("Lines break", QStringLiteral("Not at all"));
    EXPECT_LT(cardRect().height(), before);
}

TEST_F(ViewSettingsOfUser, SayWhatLinksForMobileAppsShow)
{
    showCard(cardWith(QStringLiteral(R"({"type": "button", "action": {"type": "uri",
        "label": "Open", "androidUri": "app://a", "iosUri": "app://a"}})")));
    write("Wording for those", QStringLiteral("See your phone"));
    EXPECT_EQ(shownText(), QStringLiteral("See your phone"));
    toggle("Links for mobile apps do not work");
    EXPECT_EQ(shownText(), QStringLiteral("Open"));
}

TEST_F(ViewSettingsOfUser, ShowANarrowChat)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    setNumber("Width of the chat", 150);
    EXPECT_EQ(cardRect().width(), 150);
    setNumber("Width of the chat", 1000);
    EXPECT_EQ(cardRect().width(), 300);
    clickItem(QStringLiteral("Lunch"), Qt::ControlModifier);
    EXPECT_EQ(editor().textCursor().selectedText(), textItem(QStringLiteral("Lunch")));
}

TEST_F(ViewSettingsOfUser, ShowADarkChatAndLeaveTheCardAsItIs)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    const QPoint beside = view().viewport()->rect().bottomRight() - QPoint(3, 3);
    const QColor card = colorOfCard();
    EXPECT_GT(shown().pixelColor(beside).lightness(), 200);
    editor().setFocus();
    press(Qt::Key_D, Qt::ControlModifier);
    EXPECT_LT(shown().pixelColor(beside).lightness(), 80);
    EXPECT_EQ(colorOfCard(), card);
}

TEST_F(ViewSettingsOfUser, AreReachedByKeyboard)
{
    showCard(cardWith(textItem(QStringLiteral("Lunch"))));
    press(Qt::Key_5, Qt::ControlModifier);
    EXPECT_TRUE(settings().isAncestorOf(QApplication::focusWidget()));
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_TRUE(view().hasFocus());
    press(Qt::Key_1, Qt::ControlModifier);
    EXPECT_TRUE(editor().hasFocus());
}

TEST_F(ViewSettingsOfUser, HaveMnemonicsOfTheirOwn)
{
    show({});
    QStringList texts;
    for (const QAction* menu : window().menuBar()->actions())
        texts.append(menu->text());
    for (const QAbstractButton* button : window().findChildren<QAbstractButton*>())
        texts.append(button->text());
    for (const QLabel* label : window().findChildren<QLabel*>()) {
        if (label->buddy())
            texts.append(label->text());
    }
    QStringList keys;
    for (const QString& text : texts) {
        const QString key = QKeySequence::mnemonic(text).toString();
        EXPECT_FALSE(keys.contains(key)) << text.toStdString();
        if (!key.isEmpty())
            keys.append(key);
    }
    EXPECT_EQ(keys.size(), 21);
}

TEST_F(ViewSettingsOfUser, AreRememberedButNotTheNetwork)
{
    const QString card = cardWith(textItem(QStringLiteral("Lunch")));
    showCard(card);
    window().resize(1000, 700);
    setNumber("Minimum height", 300);
    choose("Sender", QStringLiteral("The user"));
    write("Highlight", QStringLiteral("one two"));
    settings().toggleDark();
    toggle("Fetch pictures from the network");
    close();
    CardOptions given;
    given.highlight = QStringList {QStringLiteral("given")};
    showCard(card, given);
    const ViewSettings settings = View::settings().settings();
    EXPECT_EQ(window().size(), QSize(1000, 700));
    EXPECT_EQ(settings.card.height, 300);
    EXPECT_EQ(settings.card.from, 1);
    EXPECT_EQ(settings.card.highlight, given.highlight) << "the command line counts more";
    EXPECT_TRUE(settings.isDark);
    EXPECT_FALSE(settings.usesNetwork);
    EXPECT_EQ(cardRect().height(), 300);
}

TEST_F(ViewSettingsOfUser, NameTheFolderOfThePictures)
{
    showCard(
        cardWith(QStringLiteral(R"({"type": "image", "url": "https://example.com/album.png"})")));
    const QImage before = shown();
    EXPECT_EQ(
        rowOf(find<QTreeWidget>(QStringLiteral("Pictures")), QStringLiteral("album.png"))->text(1),
        QStringLiteral("no folder of pictures is set, and the network is off"));
    write("Pictures", QStringLiteral(PLIX_IMAGES));
    EXPECT_NE(shown(), before);
    EXPECT_EQ(
        rowOf(find<QTreeWidget>(QStringLiteral("Pictures")), QStringLiteral("album.png"))->text(1),
        QStringLiteral(PLIX_IMAGES "/album.png"));
}

#if defined(PLIX_HAS_NETWORK)
TEST_F(ViewSettingsOfUser, FetchPicturesOnlyIfTheUserWants)
{
    PictureServer server {QStringLiteral(PLIX_IMAGES)};
    const QString url = server.url().toString() + QStringLiteral("?url=album.png");
    showCard(cardWith(QStringLiteral(R"({"type": "image", "url": "%1"})").arg(url)));
    const auto state = [&] {
        return rowOf(find<QTreeWidget>(QStringLiteral("Pictures")), url)->text(1);
    };
    const QImage before = shown();
    QCoreApplication::processEvents();
    EXPECT_EQ(state(), QStringLiteral("no folder of pictures is set, and the network is off"));
    toggle("Fetch pictures from the network");
    const auto isFetched = [&] { return state().startsWith(QStringLiteral("fetched, ")); };
    ASSERT_TRUE(QTest::qWaitFor(isFetched)) << state().toStdString();
    EXPECT_NE(shown(), before);
}

TEST_F(ViewSettingsOfUser, FetchNoFiles)
{
    const QString url = QStringLiteral("file://" PLIX_IMAGES "/album.png");
    showCard(cardWith(QStringLiteral(R"({"type": "image", "url": "%1"})").arg(url)));
    const QImage before = shown();
    toggle("Fetch pictures from the network");
    EXPECT_EQ(rowOf(find<QTreeWidget>(QStringLiteral("Pictures")), url)->text(1),
              QStringLiteral("refused: not an address of the web"));
    EXPECT_EQ(shown(), before);
}
#endif

class ViewEvents : public View { };

TEST_F(ViewEvents, ShowEveryFieldOfAClick)
{
    showCard(cardWith(QStringLiteral(R"({"type": "button", "action": {"type": "postback",
        "label": "Vote", "data": "poll=7", "displayText": "I vote",
        "i18nLabels": {"ko": "투표"}}})")));
    clickItem(QStringLiteral("Vote"));
    auto& clicks = find<QTreeWidget>(QStringLiteral("Clicks"));
    ASSERT_EQ(clicks.topLevelItemCount(), 1);
    EXPECT_EQ(clicks.topLevelItem(0)->childCount(), 20);
    const auto valueOf = [&](const char* name) {
        return rowOf(clicks, QLatin1String(name))->text(1).toStdString();
    };
    EXPECT_EQ(valueOf("data"), "poll=7");
    EXPECT_EQ(valueOf("displayText"), "I vote");
    EXPECT_EQ(valueOf("ko"), "투표");
    EXPECT_EQ(valueOf("pcUri"), "");
    EXPECT_TRUE(clicks.isVisible()) << "the pane comes to the front";
}

TEST_F(ViewEvents, ComeByKeyboardToo)
{
    showCard(cardWith(QStringLiteral(
        R"({"type": "button", "action": {"type": "message", "label": "Yes", "text": "yes"}})")));
    press(Qt::Key_2, Qt::ControlModifier);
    press(Qt::Key_Tab);
    press(Qt::Key_Return);
    EXPECT_EQ(find<QTreeWidget>(QStringLiteral("Clicks")).topLevelItemCount(), 1);
    press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(find<QTreeWidget>(QStringLiteral("Clicks")).topLevelItemCount(), 0);
}

TEST_F(ViewEvents, ShowMentions)
{
    CardOptions options;
    options.markup = true;
    showCard(cardWith(textItem(QStringLiteral(R"(<m user=\"1201\">Ann Marie</m>)"))), options);
    const QGraphicsObject& item = *itemOf(QStringLiteral("Ann"));
    const QPointF start = item.sceneBoundingRect().topLeft() + QPointF(20, 8);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, view().mapFromScene(start));
    auto& mentions = find<QTreeWidget>(QStringLiteral("Mentions"));
    ASSERT_EQ(mentions.topLevelItemCount(), 1);
    EXPECT_EQ(mentions.topLevelItem(0)->text(1), QStringLiteral("User 1201"));
}

TEST_F(ViewEvents, ShowTheLogOfTheCard)
{
    showCard(cardWith(QStringLiteral(R"({"type": "text", "text": 7})")));
    auto& log = find<QTreeWidget>(QStringLiteral("Log"));
    ASSERT_EQ(log.topLevelItemCount(), 1);
    EXPECT_TRUE(log.topLevelItem(0)->text(0).contains(QStringLiteral("text")));
    replaceAll(cardWith(textItem(QStringLiteral("good"))));
    EXPECT_TRUE(waitForText(QStringLiteral("good")));
    EXPECT_EQ(log.topLevelItemCount(), 0);
}

} // namespace
} // namespace plix::test
