// What docs/host.md tells hosts is true: its snippets, compiled as they are, and the sentences
// around them.
#include "HostGuide.inc" // generated from docs/host.md

#include "support/AccessibleTree.h"
#include "support/ExpectedLog.h"
#include "support/Keyboard.h"
#include "support/LiveView.h"
#include "support/Mouse.h"
#include "support/PlatformMessages.h"

#include <gtest/gtest.h>

#include <sstream>

namespace plix::test {
namespace {

std::string bubble(const std::string& contents, const std::string& more = {})
{
    return R"({"type": "bubble", )" + more
        + R"("body": {"type": "box", "layout": "vertical", "contents": [)" + contents + "]}}";
}

std::string text(const std::string& words, const std::string& more = {})
{
    return R"({"type": "text", )" + more + R"("text": ")" + words + R"("})";
}

// Its size is that of the card's author, and not of the file.
const std::string kImage =
    R"({"type": "image", "size": "full", "aspectRatio": "2:1", "aspectMode": "cover",
    "backgroundColor": "#FFFF00", "url": "https://example.com/../../a.png"})";

const std::string kClickable = text("Click me", R"("action": {"type": "uri", "uri": "link"}, )");

// A host as the guide has it, whose log is that of the test.
class HostGuide : public testing::Test {
protected:
    HostGuide()
    {
        Plix_SetWiteLogCallback(&collectLogLine);
        Plix_SetCurrentLanguage("en");
    }

    ~HostGuide() override
    {
        Plix_SetWiteLogCallback(nullptr);
        Plix_SetMultiLangGetCallback(nullptr);
        Plix_SetCurrentLanguage("en");
        Plix_SetKestroControlSupport(nullptr);
    }

    void writePicture(const QColor& color, const QSize& size) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        EXPECT_TRUE(image.save(pictureFile(), "PNG"));
    }

    QString pictureFile() const
    {
        return folder_.filePath(fileName("https://example.com/../../a.png"));
    }

    std::function<void(PlixDataController*)> withDownload()
    {
        return [this](PlixDataController* controller) {
            Plix_SetDownloadCallBack(controller, &onDownload, &dir_);
        };
    }

    QTemporaryDir folder_;
    QDir dir_ {folder_.path()};
};

// The first item that is no container: depth first.
QGraphicsItem& leaf(QGraphicsItem& item)
{
    return item.childItems().isEmpty() ? item : leaf(*item.childItems().first());
}

QPointF centerOf(const HostCard& card)
{
    return leaf(*card.item()).sceneBoundingRect().center();
}

// The place, size and text of every item.
std::string layoutOf(QGraphicsItem& item)
{
    std::ostringstream out;
    const QRectF rect = item.sceneBoundingRect();
    out << rect.x() << ' ' << rect.y() << ' ' << rect.width() << ' ' << rect.height() << '\n';
    for (QGraphicsItem* child : item.childItems())
        out << layoutOf(*child);
    return out.str();
}

int clicks = 0;

void PLIX_CALL countClick(PlixDataController*, ST_ACTION&, void*)
{
    ++clicks;
}

void countClicks(PlixDataController* controller)
{
    clicks = 0;
    Plix_SetClickCallBack(controller, &countClick, nullptr);
}

// ----- Who owns what

TEST_F(HostGuide, BothHalvesOfACardMayGoFirst)
{
    {
        const HostCard deletedByScene(bubble(text("a")));
        QGraphicsScene().addItem(deletedByScene.item());
        EXPECT_EQ(deletedByScene.item(), nullptr);
    }
    PlixDataController* const controller = Plix_CreateController();
    Plix_InitData(controller, bubble(text("a")));
    const std::unique_ptr<QGraphicsItem> item(Plix_CreateQGraphicsItem(controller));
    Plix_Free(controller);
    EXPECT_EQ(item->toGraphicsObject()->property("plainText").toString(), QStringLiteral("a"));
}

TEST_F(HostGuide, ItemsOfAFreedCardKeepTheirActionsButCallNothing)
{
    PlixDataController* const controller = Plix_CreateController();
    countClicks(controller);
    Plix_InitData(controller, bubble(kClickable));
    const std::unique_ptr<QGraphicsItem> item(Plix_CreateQGraphicsItem(controller));
    CardView view(*item);
    const QPointF place = leaf(*item).sceneBoundingRect().center();
    view.click(place);
    EXPECT_EQ(clicks, 1);
    Plix_Free(controller);
    view.click(place);
    EXPECT_EQ(clicks, 1);
    EXPECT_TRUE(Plix_HasAction(&leaf(*item)));
    const HostCard withoutCallback(bubble(kClickable));
    EXPECT_TRUE(Plix_HasAction(&leaf(*withoutCallback.item())));
    EXPECT_EQ(view.cursor(), Qt::PointingHandCursor);
    item->setEnabled(false);
    view.click(place);
    EXPECT_EQ(clicks, 1);
}

// ----- Callbacks

TEST_F(HostGuide, ACardMayBeDeletedByItsClick)
{
    auto* const card = new HostCard(bubble(kClickable));
    Plix_SetClickCallBack(card->controller(), &deleteTheCard, card);
    const QPointer<QGraphicsObject> item = card->item();
    CardView view(*item);
    view.click(centerOf(*card));
    EXPECT_TRUE(item.isNull());
}

TEST_F(HostGuide, AnExceptionOfADownloadCostsOnlyThePicture)
{
    const auto fail = [](PlixDataController*, const std::string&, void*) -> std::string {
        throw std::runtime_error("no network");
    };
    const HostCard card(bubble(kImage + "," + text("a")), [&](PlixDataController* controller) {
        Plix_SetDownloadCallBack(controller, fail, nullptr);
    });
    EXPECT_EQ(textOf(card), QStringLiteral("a"));
    EXPECT_NE(takeLogLine().find("no network"), std::string::npos);
}

TEST_F(HostGuide, AnExceptionOfAClickLeavesThroughTheMouseEvent)
{
    const auto fail = [](PlixDataController*, ST_ACTION&, void*) {
        throw std::runtime_error("no");
    };
    const HostCard card(bubble(kClickable), [&](PlixDataController* controller) {
        Plix_SetClickCallBack(controller, fail, nullptr);
    });
    EXPECT_THROW(click(*card.item(), centerOf(card)), std::runtime_error);
}

// An application that has lost its fonts.
class NoFonts : public KestroControlSupport {
public:
    QString GetFontFamily() const override { throw std::runtime_error("no fonts"); }
};

TEST_F(HostGuide, AnExceptionOfTheFontObjectCostsAnItemOfABuildAndNothingElse)
{
    const HostCard before(bubble(text("a")));
    NoFonts fonts;
    EXPECT_EQ(Plix_SetKestroControlSupport(&fonts), 0);
    EXPECT_EQ(pendingLogLines(), 0);
    const HostCard card(bubble(text("a") + "," + kImage));
    EXPECT_EQ(textOf(card), QString());
    EXPECT_TRUE(hasContent(card));
    EXPECT_NE(takeLogLine().find("no fonts"), std::string::npos);
    EXPECT_EQ(pendingLogLines(), 0);
    Plix_RefreshLayout(before.controller());
    EXPECT_EQ(textOf(before), QStringLiteral("a"));
}

TEST_F(HostGuide, AnExceptionOfASlotIsIgnored)
{
    const HostCard card(bubble(text("a")));
    followGeometry(card, [] { throw std::runtime_error("no room"); });
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 300), 0);
    EXPECT_EQ(Plix_ModifyHeight(card.controller(), 400), 0);
}

// ----- Pictures

TEST_F(HostGuide, TheNameOfAPictureIsPlain)
{
    EXPECT_TRUE(QRegExp(QStringLiteral("[0-9a-f]{64}")).exactMatch(fileName("../../etc/passwd")));
}

TEST_F(HostGuide, ALatePictureNeedsAnUpdateOfTheRootAndChangesNoSize)
{
    for (const QSize& size : {QSize(10, 10), QSize(900, 30), QSize(3, 700)}) {
        QFile::remove(pictureFile());
        const HostCard card(bubble(kImage + "," + text("below")), withDownload());
        const std::string layout = layoutOf(*card.item());
        LiveView view(*card.item());
        const QPoint middle =
            view.pixelsOf(leaf(*card.item()).sceneBoundingRect()).center().toPoint();
        EXPECT_EQ(view.shown().pixelColor(middle), QColor(Qt::yellow));

        writePicture(Qt::red, size);
        view.paintWhatChanged();
        EXPECT_EQ(view.shown().pixelColor(middle), QColor(Qt::yellow)) << "nothing is painted yet";
        onDownloaded(card);
        view.paintWhatChanged();
        EXPECT_EQ(view.shown().pixelColor(middle), QColor(Qt::red));
        EXPECT_EQ(layoutOf(*card.item()), layout);
        Plix_RefreshLayout(card.controller());
        EXPECT_EQ(layoutOf(*card.item()), layout);
    }
}

TEST_F(HostGuide, AFailedPictureShowsItsBackgroundAndLogsNothing)
{
    QFile file(pictureFile());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<html>not found</html>");
    file.close();
    const HostCard broken(bubble(kImage), withDownload());
    const HostCard unknown(bubble(kImage));
    for (const HostCard* card : {&broken, &unknown}) {
        LiveView view(*card->item());
        const QPoint middle =
            view.pixelsOf(leaf(*card->item()).sceneBoundingRect()).center().toPoint();
        EXPECT_EQ(view.shown().pixelColor(middle), QColor(Qt::yellow));
        writePicture(Qt::red, {10, 10});
        if (card == &unknown)
            setPictureFile(*leaf(*card->item()).toGraphicsObject(), pictureFile());
        onDownloaded(*card);
        view.paintWhatChanged();
        EXPECT_EQ(view.shown().pixelColor(middle), QColor(Qt::red));
    }
    EXPECT_EQ(layoutOf(*broken.item()), layoutOf(*unknown.item()));
}

// ----- Sizes

TEST_F(HostGuide, AScaledCardTakesClicksWhereItIsShown)
{
    const HostCard card(bubble(kClickable), &countClicks);
    const QRectF before = card.item()->sceneBoundingRect();
    fitInto(before.width() / 2, 2, card);
    EXPECT_EQ(card.item()->sceneBoundingRect().width(), before.width() / 2);
    click(*card.item(), centerOf(card));
    EXPECT_EQ(clicks, 1);
    click(*card.item(), before.bottomRight() - QPointF(5, 5));
    EXPECT_EQ(clicks, 1) << "the card is not there any more";
    fitInto(10'000, 1, card);
    EXPECT_EQ(card.item()->sceneBoundingRect(), before) << "never larger than its author wants";
}

TEST_F(HostGuide, TheSizeChangesOnlyInCallsOfTheHost)
{
    const HostCard card(bubble(kImage + "," + text("a")), withDownload());
    int changes = 0;
    followGeometry(card, [&changes] { ++changes; });
    writePicture(Qt::red, {900, 900});
    LiveView view(*card.item());
    onDownloaded(card);
    highlight(card, {QStringLiteral("a")});
    mark(card, true);
    Plix_SetDpi(card.controller(), 2);
    Plix_RefreshLayout(card.controller());
    view.paintAllAgain();
    EXPECT_EQ(changes, 0);
    const double height = card.item()->boundingRect().height();
    Plix_ModifyHeight(card.controller(), int(height) + 50);
    EXPECT_GT(changes, 0);
    EXPECT_EQ(card.item()->boundingRect().height(), int(height) + 50);
}

// ----- Colours, language, sender

TEST_F(HostGuide, MarkingACardChangesItsBubbleOnly)
{
    const HostCard card(bubble(R"({"type": "box", "layout": "vertical", "height": "40px",
        "backgroundColor": "#00FF00", "contents": []})"));
    LiveView view(*card.item());
    const auto colorAt = [&](const QPointF& place) {
        view.paintWhatChanged();
        return view.shown().pixelColor(view.pixelsOf({place, QSizeF()}).topLeft().toPoint());
    };
    const QRectF rect = card.item()->sceneBoundingRect();
    const QPointF edge = rect.center() - QPointF(rect.width() / 2 - 5, 0);
    EXPECT_EQ(colorAt(edge), QColor(0xF1F3F7));
    mark(card, true);
    EXPECT_EQ(colorAt(edge), QColor(0xFFF3C4));
    EXPECT_EQ(colorAt(rect.center()), QColor(Qt::green));
    EXPECT_EQ(colorAt(rect.topLeft()), QColor(Qt::white)) << "nothing outside of the corner";
    mark(card, false);
    EXPECT_EQ(colorAt(edge), QColor(0xF1F3F7));
}

TEST_F(HostGuide, LanguageAndSenderAreReadWhileACardIsBuilt)
{
    const std::string json = bubble(text("Hello", R"("i18nTexts": {"ko": "안녕"}, )"));
    const auto english = cardInLanguage("en", json, false);
    const auto korean = cardInLanguage("ko", json, true);
    EXPECT_EQ(textOf(*english), QStringLiteral("Hello"));
    EXPECT_EQ(textOf(*korean), QStringLiteral("안녕"));
    Plix_SetCurrentLanguage("en");
    Plix_InitSetFrom(korean->controller(), 0);
    Plix_RefreshLayout(korean->controller());
    EXPECT_EQ(textOf(*korean), QStringLiteral("안녕"));
    const LiveView view(*korean->item());
    const QPointF edge = korean->item()->sceneBoundingRect().center() - QPointF(0, 15);
    EXPECT_EQ(view.shown().pixelColor(view.pixelsOf({edge, QSizeF()}).topLeft().toPoint()),
              QColor(0xC0EAFC));
}

TEST_F(HostGuide, MarkupShowsMentions)
{
    const auto card = cardInLanguage("en", bubble(text(R"(<m user=\"7\">@Ann</m>)")), false);
    EXPECT_EQ(textOf(*card), QStringLiteral("@Ann"));
}

// ----- What is no card

TEST_F(HostGuide, WhatIsNoCardHasTheHeightZero)
{
    QGraphicsRectItem fallback;
    for (const char* json : {"{}", "[]", "7", "null", R"({"type": "carousel"})",
                             R"({"type": "bubble"})", R"({"type": "bubble", "body": null})"}) {
        const HostCard card(json);
        EXPECT_EQ(card.result(), 0) << json;
        EXPECT_FALSE(hasContent(card)) << json;
        EXPECT_EQ(itemOrFallback(card, fallback), &fallback) << json;
    }
    const HostCard real(bubble(text("a")));
    EXPECT_EQ(itemOrFallback(real, fallback), real.item());
}

TEST_F(HostGuide, TextThatIsNotJsonIsNoCardAndIsNotLogged)
{
    for (const char* json : {"", "no card", R"(["type": "bubble")"}) {
        const HostCard card(json);
        EXPECT_EQ(card.result(), 0) << json;
        EXPECT_FALSE(hasContent(card)) << json;
    }
}

TEST_F(HostGuide, BrokenJsonShowsWhatPrecedesTheError)
{
    const std::string whole = bubble(text("first") + ", " + text("second"));
    const HostCard card(whole.substr(0, whole.find("second")));
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(textOf(card), QStringLiteral("first"));
}

TEST_F(HostGuide, ABubbleThatCannotBeReadIsLoggedAndKeepsWhatWasRead)
{
    const std::string deep = R"({"type": "bubble", "body": )" + std::string(2000, '[');
    for (const std::string& json : {deep, bubble(text("a"), R"("size": 7, )")}) {
        const HostCard card(json);
        EXPECT_EQ(card.result(), -1);
        EXPECT_NE(takeLogLine(), "");
        EXPECT_FALSE(hasContent(card));
    }
}

TEST_F(HostGuide, ABadComponentLeavesTheRest)
{
    const HostCard card(
        bubble(R"({"type": "text", "text": 7}, {"type": "hologram"},)" + text("a")));
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(textOf(card), QStringLiteral("a"));
    EXPECT_NE(takeLogLine(), "");
    EXPECT_EQ(pendingLogLines(), 0) << "the unknown component is not logged";
}

TEST_F(HostGuide, LogLinesCanNameTheirMessage)
{
    std::ostringstream log;
    std::streambuf* const before = std::clog.rdbuf(log.rdbuf());
    const auto card = buildMessage("message 12", bubble(text("a"), R"("size": 7, )"));
    std::clog.rdbuf(before);
    EXPECT_EQ(log.str().rfind("message 12: call PlixJsonDataParse::ParseBubble failed. ", 0), 0U)
        << log.str();
}

// ----- Popups, texts, links

void sendMouse(QGraphicsView& view, QEvent::Type type, const QPointF& place)
{
    const QPoint pixel = view.mapFromScene(place);
    const bool isDown = type != QEvent::MouseButtonRelease;
    QMouseEvent event(type, pixel, view.viewport()->mapToGlobal(pixel),
                      type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                      isDown ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view.viewport(), &event);
}

void pressAndRelease(QGraphicsView& view, const QPointF& place)
{
    sendMouse(view, QEvent::MouseButtonPress, place);
    sendMouse(view, QEvent::MouseButtonRelease, place);
}

void pressMoveAndRelease(QGraphicsView& view, const QPointF& from, const QPointF& to)
{
    sendMouse(view, QEvent::MouseButtonPress, from);
    sendMouse(view, QEvent::MouseMove, to);
    sendMouse(view, QEvent::MouseButtonRelease, to);
}

TEST_F(HostGuide, APopupOpensAtTheMouseOrBelowWhatTheKeyboardHasClicked)
{
    const PlatformMessages ignored;
    const auto card = cardInLanguage("en", bubble(text(R"(<m user=\"7\">@Ann Lee</m>)")), false);
    QGraphicsScene scene;
    scene.addItem(card->item());
    HostView view(scene);
    view.show();
    QMenu menu;
    ProfilePopup popup {&view, &menu};
    Plix_SetMentionHandleCallback(card->controller(), &showProfile, &popup);
    const QRectF rect = leaf(*card->item()).sceneBoundingRect();

    QCursor::setPos(200, 100);
    pressAndRelease(view, {rect.left() + 10, rect.center().y()});
    ASSERT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.actions().first()->text(), QStringLiteral("Profile of user 7"));
    EXPECT_EQ(menu.pos(), QPoint(200, 100));
    EXPECT_EQ(scene.focusItem(), nullptr) << "the mouse does not move the focus";
    menu.close();

    pressKey(view, Qt::Key_Tab);
    ASSERT_NE(scene.focusItem(), nullptr);
    const QPoint corner = view.mapFromScene(scene.focusItem()->sceneBoundingRect().bottomLeft());
    pressKey(view, Qt::Key_Return);
    ASSERT_TRUE(menu.isVisible());
    EXPECT_EQ(menu.pos(), view.viewport()->mapToGlobal(corner));
    menu.close();
}

TEST_F(HostGuide, TheFocusStaysInSight)
{
    const HostCard card(
        bubble(text("high", R"("wrap": true, )") + ","
               + R"({"type": "box", "layout": "vertical", "height": "900px", "contents": []},)"
               + kClickable));
    QGraphicsScene scene;
    scene.addItem(card.item());
    HostView view(scene);
    view.resize(300, 300);
    view.show();
    view.verticalScrollBar()->setValue(0);
    pressKey(view, Qt::Key_Tab);
    ASSERT_NE(scene.focusItem(), nullptr);
    EXPECT_TRUE(view.mapToScene(view.viewport()->rect())
                    .boundingRect()
                    .contains(scene.focusItem()->sceneBoundingRect()));
}

// Drags over the first text of a card, up to its end.
void select(CardView& view, QGraphicsItem& card)
{
    const QRectF rect = leaf(card).sceneBoundingRect();
    view.drag(rect.topLeft() + QPointF(1, 5), rect.bottomRight() + QPointF(9, 9));
}

TEST_F(HostGuide, ReadersSelectTextsAndAHostMaySwitchThatOff)
{
    const HostCard card(bubble(text("Order 4711")));
    CardView view(*card.item());
    EXPECT_EQ(selectedText(view.scene()), QString());
    select(view, *card.item());
    EXPECT_EQ(selectedText(view.scene()), QStringLiteral("Order 4711"));
    disableSelection(*card.item());
    EXPECT_EQ(selectedText(view.scene()), QString());
    select(view, *card.item());
    EXPECT_EQ(selectedText(view.scene()), QString());
}

TEST_F(HostGuide, ASelectionTakesTheFocusAndDoesNotScroll)
{
    const std::string column =
        R"({"type": "box", "layout": "vertical", "height": "900px", "contents": []})";
    const HostCard card(bubble(text("Order 4711") + ',' + column));
    QGraphicsScene scene;
    scene.addItem(card.item());
    QWidget window;
    QLineEdit input(&window);
    HostView view(scene);
    view.setParent(&window);
    view.resize(300, 300);
    window.show();
    QApplication::setActiveWindow(&window);
    input.setFocus();
    view.verticalScrollBar()->setValue(
        leaf(*card.item()).sceneBoundingRect().center().toPoint().y());
    const int scrolled = view.verticalScrollBar()->value();
    ASSERT_GT(scrolled, 0);
    const QRectF rect = leaf(*card.item()).sceneBoundingRect();
    const QPointF from(rect.left() + 1, rect.bottom() - 3);
    pressAndRelease(view, from);
    EXPECT_TRUE(input.hasFocus());
    pressMoveAndRelease(view, from, from + QPointF(40, 0));
    EXPECT_FALSE(selectedText(scene).isEmpty());
    EXPECT_TRUE(view.hasFocus());
    EXPECT_EQ(view.verticalScrollBar()->value(), scrolled);
    input.setFocus();
    EXPECT_FALSE(selectedText(scene).isEmpty());
}

TEST_F(HostGuide, TheTextOfACardHasALinePerRow)
{
    const HostCard card(bubble(R"({"type": "box", "layout": "horizontal", "contents": [)"
                               + text("Tea") + "," + text("2.50") + "]}," + text("Thanks")));
    EXPECT_EQ(textOf(card), QStringLiteral("Tea 2.50\nThanks"));
    EXPECT_TRUE(highlight(card, {QStringLiteral("nothing"), QStringLiteral("THANK")}));
    EXPECT_FALSE(highlight(card, {QStringLiteral("nothing")}));
    EXPECT_FALSE(highlight(card, {}));
}

TEST_F(HostGuide, ScreenReadersReadCardsAndPressThem)
{
    letScreenReadersReadViews();
    const HostCard card(bubble(text("Title") + "," + kClickable), &countClicks);
    CardView view(*card.item());
    QAccessibleInterface& found = *accessible(&view.view()).child(0);
    EXPECT_EQ(treeOf(found),
              "Grouping Title\n  Grouping\n    StaticText Title\n    Link Click me\n");
    nameForScreenReaders(card, QStringLiteral("Ann"));
    EXPECT_EQ(nameOf(found), "Ann: Title");
    press(*found.child(0)->child(1));
    EXPECT_EQ(clicks, 1);
}

TEST_F(HostGuide, ScreenReadersNameWhatHasNoLabelAndSelectTexts)
{
    letScreenReadersReadViews();
    const HostCard card(bubble(text("Title") + R"(, {"type": "image", "url": "a", "size": "xxs",
        "action": {"type": "uri", "uri": "https://example.com/a"}})"));
    CardView view(*card.item());
    QAccessibleInterface& body = *accessible(&view.view()).child(0)->child(0);
    EXPECT_EQ(treeOf(body), "Grouping\n  StaticText Title\n  Graphic example.com\n");
    body.child(0)->textInterface()->setSelection(0, 0, 3);
    EXPECT_EQ(selectedText(view.scene()), QStringLiteral("Tit"));
    QApplication::setActiveWindow(&view.view());
    view.doubleClick(card.item()->mapToScene(QPointF(30, 25)));
    EXPECT_EQ(selectedText(view.scene()), QStringLiteral("Title"));
    EXPECT_EQ(accessible(&view.view()).focusChild(), body.child(0));
}

TEST_F(HostGuide, OnlyPagesOfTheWebAreOpened)
{
    ST_ACTION action;
    for (const char* link : {"", "file:///etc/passwd", "javascript:alert(1)", "calc.exe",
                             "//example.com/a", "https://bank.example@evil.example/",
                             "https:///path", "https://a b.example/", "ftp://a"}) {
        action.uri = link;
        EXPECT_TRUE(linkOf(action).isEmpty()) << link;
    }
    action.uri = "https://example.com/a?b=c";
    EXPECT_EQ(shownLink(linkOf(action)), QStringLiteral("https://example.com/a?b=c"));
    action.pcUri = "https://b\u0430nk.example/"; // with a Cyrillic letter
    EXPECT_TRUE(shownLink(linkOf(action)).startsWith(QStringLiteral("https://xn--")));
}

// ----- Fonts

TEST_F(HostGuide, ARefreshAfterAChangeOfTheFontFitsTheCard)
{
    const std::string json = bubble(text("Words that need some lines in any of the fonts, and in "
                                         "each of them other ones",
                                         R"("wrap": true, )"));
    HostFonts fonts;
    Plix_SetKestroControlSupport(&fonts);
    HostCard card(json);
    changeFamily(fonts, QStringLiteral("Noto Sans CJK SC"), {&card});
    const HostCard fresh(json);
    EXPECT_EQ(layoutOf(*card.item()), layoutOf(*fresh.item()));
}

} // namespace
} // namespace plix::test
