// The chat of examples/chat, used by mouse and keyboard. Its pictures come from a server in
// this process, which replies when the test wants it to.
#include "ChatWindow.h"
#include "PictureServer.h"

#include "support/ExpectedLog.h"
#include "support/PlatformMessages.h"

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include <iostream>
#include <sstream>

namespace plix::test {
namespace {

QString readCard(const char* name)
{
    QFile file(QStringLiteral(PLIX_CARDS "/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
    return QString::fromUtf8(file.readAll());
}

ChatMessage card(const char* name)
{
    return {QStringLiteral("Bot"), readCard(name), true};
}

// A card that is an image.
ChatMessage imageCard(const char* url)
{
    const QString json = QStringLiteral(R"({"type": "bubble", "hero": {"type": "image",
        "size": "full", "aspectRatio": "3:2", "url": "%1"}})");
    return {QStringLiteral("Bot"), json.arg(QLatin1String(url)), true};
}

ChatMessage plain(const QString& text)
{
    return {QStringLiteral("Ann"), text};
}

// What a text or a button says.
QString wordsOf(const QGraphicsItem& item)
{
    const QGraphicsObject* const object = item.toGraphicsObject();
    if (!object)
        return {};
    return object->property(object->inherits("TextItem") ? "plainText" : "shownLabel").toString();
}

class Chat : public testing::Test {
protected:
    Chat()
    {
        QObject::connect(&window_, &ChatWindow::linkClicked,
                         [this](const QUrl& url) { links_ += url.toString().toStdString() + ' '; });
    }

    ~Chat() override { Plix_SetCurrentLanguage("en"); }

    void show(const std::vector<ChatMessage>& messages)
    {
        window_.add(messages);
        window_.show();
        window_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    }

    QGraphicsView& view() { return *window_.findChild<QGraphicsView*>(); }
    QScrollBar& scrollBar() { return *view().verticalScrollBar(); }
    QLineEdit& input() { return line("Write a message"); }
    QLineEdit& search() { return line("Search"); }
    std::string status() { return window_.statusBar()->currentMessage().toStdString(); }

    QLineEdit& line(const char* placeholder)
    {
        for (QLineEdit* edit : window_.findChildren<QLineEdit*>()) {
            if (edit->placeholderText() == QLatin1String(placeholder))
                return *edit;
        }
        throw std::logic_error("no such line");
    }

    // The item that shows this, or null.
    QGraphicsItem* itemOf(const QString& text)
    {
        for (QGraphicsItem* item : view().items()) {
            if (wordsOf(*item).contains(text))
                return item;
        }
        return nullptr;
    }

    bool isVisible(const QString& text)
    {
        const QGraphicsItem* const item = itemOf(text);
        const QRectF shown = view().mapToScene(view().viewport()->rect()).boundingRect();
        return item && item->sceneBoundingRect().intersects(shown);
    }

    QPoint pixelOf(const QGraphicsItem& item, const QPointF& offset = {})
    {
        return view().mapFromScene(item.sceneBoundingRect().center() + offset);
    }

    void click(const QString& text)
    {
        QGraphicsItem* const item = itemOf(text);
        ASSERT_NE(item, nullptr) << text.toStdString();
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, pixelOf(*item));
    }

    void type(const QString& text)
    {
        QTest::keyClicks(QApplication::focusWidget(), text);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    std::size_t itemCount() { return std::size_t(view().scene()->items().size()); }

    bool waitForPictures()
    {
        return QTest::qWaitFor([this] { return !window_.isLoadingPictures(); });
    }

    QImage shown() { return view().viewport()->grab().toImage(); }

    const PlatformMessages platform_;
    PictureServer server_ {QStringLiteral(PLIX_IMAGES)};
    ChatWindow window_ {server_.url()};
    std::string links_;
};

// ----- Messages

TEST_F(Chat, ShowsTheLastOfThousandsOfMessagesAndBuildsOnlyThoseThatAreNear)
{
    std::vector<ChatMessage> messages;
    for (int i = 0; i < 3000; ++i)
        messages.push_back(i % 2 ? card("receipt.json")
                                 : plain(QStringLiteral("message %1").arg(i)));
    messages.push_back(plain(QStringLiteral("the last one")));
    show(messages);
    EXPECT_TRUE(isVisible(QStringLiteral("the last one")));
    const std::size_t items = itemCount();
    EXPECT_LT(items, 1000U);

    press(Qt::Key_PageUp, Qt::NoModifier);
    EXPECT_FALSE(isVisible(QStringLiteral("the last one")));
    QTest::keyClick(&view(), Qt::Key_Home);
    scrollBar().setValue(0);
    EXPECT_TRUE(isVisible(QStringLiteral("message 0")));
    EXPECT_FALSE(isVisible(QStringLiteral("message 2998")));
    EXPECT_LT(itemCount(), 2 * items) << "those that are far away are released";
}

TEST_F(Chat, KeepsWhatTheReaderLooksAtWhileOthersAreBuilt)
{
    std::vector<ChatMessage> messages(400, card("coffee_shop.json"));
    messages[200] = plain(QStringLiteral("the middle"));
    show(messages);
    search().setFocus();
    type(QStringLiteral("middle"));
    ASSERT_TRUE(isVisible(QStringLiteral("the middle")));
    const int y = pixelOf(*itemOf(QStringLiteral("the middle"))).y();
    const int step = 40;
    for (int i = 1; i <= 60; ++i) {
        scrollBar().setValue(scrollBar().value() - step);
        if (QGraphicsItem* const item = itemOf(QStringLiteral("the middle"))) {
            ASSERT_NEAR(pixelOf(*item).y(), y + i * step, 1);
        }
    }
}

TEST_F(Chat, SendsWhatTheUserWrites)
{
    show({card("receipt.json")});
    EXPECT_TRUE(input().hasFocus());
    type(QStringLiteral("Hello <b>there</b>"));
    EXPECT_TRUE(isVisible(QStringLiteral("Hello <b>there</b>")));
    EXPECT_EQ(input().text(), QString());
    type(QStringLiteral("  "));
    EXPECT_EQ(itemOf(QStringLiteral("  ")), nullptr);
}

TEST_F(Chat, ShowsATextForWhatIsNoCard)
{
    std::ostringstream log;
    std::streambuf* const before = std::clog.rdbuf(log.rdbuf());
    show({{QStringLiteral("Bot"), QStringLiteral("{}"), true},
          {QStringLiteral("Bad Bot"), QStringLiteral(R"({"type": "bubble", "size": 7})"), true}});
    std::clog.rdbuf(before);
    EXPECT_TRUE(isVisible(QStringLiteral("This message cannot be shown.")));
    EXPECT_EQ(log.str().rfind("A card of Bad Bot: call ", 0), 0U) << log.str();
}

TEST_F(Chat, CopiesAndDeletesAMessageByItsMenu)
{
    show({plain(QStringLiteral("first")), card("receipt.json"), plain(QStringLiteral("last"))});
    const auto choose = [this](const QString& text, Qt::Key key) {
        QContextMenuEvent event(QContextMenuEvent::Mouse, pixelOf(*itemOf(text)));
        QApplication::sendEvent(view().viewport(), &event);
        QTest::keyClick(QApplication::activePopupWidget(), key);
    };
    choose(QStringLiteral("Subtotal"), Qt::Key_C);
    EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("\nSubtotal 23.70\n")));
    choose(QStringLiteral("Subtotal"), Qt::Key_D);
    EXPECT_EQ(itemOf(QStringLiteral("Subtotal")), nullptr);
    EXPECT_TRUE(isVisible(QStringLiteral("first")));
    EXPECT_TRUE(isVisible(QStringLiteral("last")));
}

// ----- Pictures

class SelectionInChat : public Chat, public testing::WithParamInterface<const char*> { };

TEST_P(SelectionInChat, IsCopied)
{
    show({plain(QStringLiteral("a plain message")), card("receipt.json")});
    EXPECT_TRUE(input().hasFocus());
    QGraphicsItem* const item = itemOf(QLatin1String(GetParam()));
    ASSERT_NE(item, nullptr);
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, pixelOf(*item));
    EXPECT_TRUE(view().hasFocus());
    press(Qt::Key_A);
    press(Qt::Key_C);
    EXPECT_EQ(QApplication::clipboard()->text(), QLatin1String(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Texts, SelectionInChat, testing::Values("a plain message", "Subtotal"));

TEST_F(Chat, ShowsPicturesThatArriveLateInPlace)
{
    server_.hold();
    show({card("coffee_shop.json")});
    ASSERT_TRUE(
        QTest::qWaitFor([this] { return server_.held() == 6; })); // Qt sends no more at once
    const QRectF place = itemOf(QStringLiteral("Bluebell Coffee"))->sceneBoundingRect();
    const QImage before = shown();
    server_.release();
    ASSERT_TRUE(waitForPictures());
    EXPECT_NE(shown(), before);
    EXPECT_EQ(itemOf(QStringLiteral("Bluebell Coffee"))->sceneBoundingRect(), place);
}

TEST_F(Chat, DownloadsAPictureOnce)
{
    server_.hold();
    show({card("coffee_shop.json"), card("coffee_shop.json"), card("coffee_shop.json")});
    ASSERT_TRUE(QTest::qWaitFor([this] { return server_.held() == 6; }));
    server_.release();
    ASSERT_TRUE(waitForPictures());
    window_.add({card("coffee_shop.json")});
    EXPECT_FALSE(window_.isLoadingPictures());
}

TEST_F(Chat, SaysThatAPictureFailed)
{
    server_.breakOff(QStringLiteral("album.png"));
    show({imageCard("https://example.com/album.png")});
    ASSERT_TRUE(waitForPictures());
    EXPECT_EQ(status(), "No picture: https://example.com/album.png");
    window_.add({imageCard("https://example.com/none.png")});
    ASSERT_TRUE(waitForPictures());
    EXPECT_EQ(status(), "No picture: https://example.com/none.png");
}

TEST_F(Chat, MayDeleteACardBeforeItsPicturesArrive)
{
    server_.hold();
    show({card("coffee_shop.json")});
    ASSERT_TRUE(QTest::qWaitFor([this] { return server_.held() == 6; }));
    window_.findChild<QComboBox*>()->setCurrentIndex(1);
    server_.release();
    EXPECT_TRUE(waitForPictures());
}

TEST_F(Chat, MayBeClosedBeforePicturesArrive)
{
    server_.hold();
    {
        ChatWindow other(server_.url());
        other.add({card("coffee_shop.json")});
        other.show();
        ASSERT_TRUE(QTest::qWaitFor([this] { return server_.held() == 6; }));
    }
    server_.release();
    QApplication::processEvents();
}

// ----- Clicks

TEST_F(Chat, OpensLinksAndSaysSo)
{
    show({card("coffee_shop.json")});
    click(QStringLiteral("See the menu"));
    EXPECT_EQ(links_, "https://example.com/bluebell/menu ");
    EXPECT_EQ(status(), "Opens https://example.com/bluebell/menu");
    EXPECT_TRUE(input().hasFocus()) << "a click leaves the focus in the input line";
}

TEST_F(Chat, TakesTheKeyboardThroughTheCards)
{
    show({card("coffee_shop.json"), card("coffee_shop.json")});
    view().setFocus(Qt::TabFocusReason);
    for (int i = 0; i < 5; ++i) {
        press(Qt::Key_Tab, Qt::NoModifier);
        const QGraphicsItem* const item = view().scene()->focusItem();
        ASSERT_NE(item, nullptr);
        EXPECT_TRUE(view().viewport()->rect().contains(pixelOf(*item)));
    }
    press(Qt::Key_Return, Qt::NoModifier);
    EXPECT_EQ(status(), "Opens https://example.com/bluebell/menu");
}

TEST_F(Chat, RefusesLinksThatAreNoPages)
{
    QString json = readCard("coffee_shop.json");
    json.replace(QStringLiteral("https://example.com/bluebell/menu"),
                 QStringLiteral("file:///etc/passwd"));
    json.replace(QStringLiteral("https://example.com/bluebell/map"),
                 QStringLiteral("https://bank.example@evil.example"));
    show({{QStringLiteral("Bot"), json, true}});
    click(QStringLiteral("See the menu"));
    EXPECT_EQ(status(), "Refused: file:///etc/passwd");
    click(QStringLiteral("Show on the map"));
    EXPECT_EQ(status(), "Refused: https://bank.example@evil.example");
    EXPECT_EQ(links_, "");
}

TEST_F(Chat, NamesMentionedUsers)
{
    show({card("mentions.json")});
    QGraphicsItem* const item = itemOf(QStringLiteral("hands the release over"));
    const QPointF start = item->sceneBoundingRect().topLeft() + QPointF(20, 8);
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, view().mapFromScene(start));
    EXPECT_EQ(status(), "User 1201");
}

TEST_F(Chat, AnswersInTheUsersNameAlsoIfThatDeletesTheClickedCard)
{
    std::vector<ChatMessage> all(200, card("receipt.json"));
    all[0] = card("poll_buttons.json");
    show(all);
    scrollBar().setValue(0);
    const QString answer = QStringLiteral("I shall not be there");
    ASSERT_TRUE(isVisible(answer));
    const QPointer<QGraphicsObject> button = itemOf(answer)->toGraphicsObject();
    click(answer);
    EXPECT_TRUE(button.isNull()) << "the window shows the answer, which is far away";
    EXPECT_TRUE(isVisible(answer));
}

// ----- The window

TEST_F(Chat, MakesCardsSmallerInANarrowWindow)
{
    show({card("coffee_shop.json")});
    const double width = itemOf(QStringLiteral("See the menu"))->sceneBoundingRect().width();
    window_.resize(260, 800);
    QGraphicsItem& button = *itemOf(QStringLiteral("See the menu"));
    EXPECT_LT(button.sceneBoundingRect().width(), 0.8 * width);
    EXPECT_TRUE(view().sceneRect().contains(button.topLevelItem()->sceneBoundingRect()));
    click(QStringLiteral("See the menu"));
    EXPECT_EQ(status(), "Opens https://example.com/bluebell/menu");
}

TEST_F(Chat, StaysAtTheEndWhenTheWindowChanges)
{
    show(std::vector<ChatMessage>(50, card("coffee_shop.json")));
    for (const QSize& size : {QSize(260, 400), QSize(900, 300), QSize(480, 900)}) {
        window_.resize(size);
        EXPECT_EQ(scrollBar().value(), scrollBar().maximum());
    }
}

// How much the blue of neighbours differs, in the mean, from 0 to 255.
double contrast(const QImage& image)
{
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 1; x < image.width(); ++x)
            sum += std::abs(qBlue(image.pixel(x, y)) - qBlue(image.pixel(x - 1, y)));
    }
    return sum / (image.width() * image.height());
}

// A picture whose pixels are blue and black in turn.
void writeFinePattern(const QString& path)
{
    QImage pattern(900, 600, QImage::Format_RGB32);
    for (int y = 0; y < pattern.height(); ++y) {
        for (int x = 0; x < pattern.width(); ++x)
            pattern.setPixel(x, y, qRgb(0, 0, (x + y) % 2 * 255));
    }
    EXPECT_TRUE(pattern.save(path));
}

TEST_F(Chat, ShowsSharpPicturesWhenItIsZoomed)
{
    const QTemporaryDir folder;
    writeFinePattern(folder.filePath(QStringLiteral("pattern.png")));
    server_.setFolder(folder.path());
    show({imageCard("https://example.com/pattern.png")});
    ASSERT_TRUE(waitForPictures());
    window_.resize(1000, 800);
    for (int i = 0; i < 8; ++i)
        press(Qt::Key_Plus);
    const QGraphicsItem& card = *view().items().last()->topLevelItem();
    const QRect area = view().mapFromScene(card.sceneBoundingRect()).boundingRect();
    EXPECT_NEAR(area.width(), 900, 1);
    EXPECT_GT(contrast(shown().copy(area.adjusted(50, 50, -50, -50))), 200);
}

TEST_F(Chat, ChangesTheLanguageOfAllCards)
{
    show({card("languages.json")});
    ASSERT_TRUE(isVisible(QStringLiteral("Your books are due soon")));
    auto* const language = window_.findChild<QComboBox*>();
    language->setFocus();
    QTest::keyClick(language, Qt::Key_Down);
    EXPECT_TRUE(isVisible(QStringLiteral("반납일이 다가오고 있습니다")));
    EXPECT_FALSE(isVisible(QStringLiteral("Your books are due soon")));
}

TEST_F(Chat, HasALightAndADarkLookAndLeavesCardsAsTheyAre)
{
    show({card("receipt.json")});
    ASSERT_TRUE(waitForPictures());
    const QPoint beside = view().viewport()->rect().bottomRight() - QPoint(3, 3);
    const QPoint inCard = pixelOf(*itemOf(QStringLiteral("Subtotal")));
    const QImage light = shown();
    QTest::keyClick(window_.findChild<QCheckBox*>(), Qt::Key_Space);
    ASSERT_TRUE(window_.findChild<QCheckBox*>()->isChecked());
    const QImage dark = shown();
    EXPECT_GT(light.pixelColor(beside).lightness(), 200);
    EXPECT_LT(dark.pixelColor(beside).lightness(), 80);
    EXPECT_EQ(dark.pixelColor(inCard), light.pixelColor(inCard));
}

TEST_F(Chat, FindsOlderMessagesAndHighlightsTheWords)
{
    std::vector<ChatMessage> all(300, card("receipt.json"));
    all[20] = card("coffee_shop.json");
    all[10] = plain(QStringLiteral("Bluebells"));
    show(all);
    ASSERT_TRUE(waitForPictures());
    press(Qt::Key_F);
    ASSERT_TRUE(search().hasFocus());
    type(QStringLiteral("bluebell"));
    ASSERT_TRUE(isVisible(QStringLiteral("Bluebell Coffee")));
    ASSERT_TRUE(waitForPictures());
    const QImage highlighted = shown();
    type(QString());
    EXPECT_TRUE(isVisible(QStringLiteral("Bluebells")));
    type(QString());
    EXPECT_EQ(status(), "Not found");
    type(QString());
    EXPECT_TRUE(isVisible(QStringLiteral("Bluebell Coffee"))) << "from the end again";
    EXPECT_EQ(shown(), highlighted);
    press(Qt::Key_Escape, Qt::NoModifier);
    EXPECT_TRUE(input().hasFocus());
    EXPECT_NE(shown(), highlighted);
}

} // namespace
} // namespace plix::test
