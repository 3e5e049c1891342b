// How long a selection lasts, and what it does to others: the keyboard focus, the items below
// the text, the context menu, cursors and tooltips.
#include "SelectionView.h"

#include "support/PlatformMessages.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QGraphicsSceneMouseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QTranslator>

namespace {

const QString kOneTwoThree = QStringLiteral("one two, three");

// A text in a window that also has an input line, as in a chat.
class SelectionInWindow : public testing::Test {
protected:
    SelectionInWindow()
        : view_(kOneTwoThree)
    {
        view_.view().setParent(&window_);
        window_.show();
        QApplication::setActiveWindow(&window_);
        input_.setFocus();
    }

    void select() { view_.drag(view_.place(4), view_.place(7)); }

    // Another text of the scene, below the first one.
    std::unique_ptr<TextItem> makeOther()
    {
        auto other = std::make_unique<TextItem>();
        other->setFont(view_.item->font());
        other->InsertRichText(QStringLiteral("other"), true);
        other->setTextInteractionFlags(Qt::TextSelectableByMouse);
        other->setPos(0, view_.lineHeight());
        view_.add(*other);
        return other;
    }

    QWidget window_;
    QLineEdit input_ {&window_};
    SelectionView view_;
};

// ----- The keyboard focus

using SelectionFocus = SelectionInWindow;

TEST_F(SelectionFocus, IsTakenByASelectionOnly)
{
    view_.click(view_.place(4));
    EXPECT_TRUE(input_.hasFocus());
    EXPECT_EQ(view_.scene().focusItem(), nullptr);
    view_.press(view_.place(4));
    EXPECT_TRUE(input_.hasFocus());
    view_.moveTo(view_.place(7));
    EXPECT_TRUE(view_.hasFocus());
    view_.release(view_.place(7));
    EXPECT_EQ(view_.copied(), "two");
}

TEST_F(SelectionFocus, IsTakenByADoubleClickAndAShiftedClick)
{
    view_.doubleClick(view_.on(5));
    EXPECT_TRUE(view_.hasFocus());
    input_.setFocus();
    view_.hold(Qt::ShiftModifier);
    view_.click(view_.place(9));
    EXPECT_TRUE(view_.hasFocus());
}

TEST_F(SelectionFocus, IsNotTakenFromAViewThatNeverHasIt)
{
    view_.view().setFocusPolicy(Qt::NoFocus);
    select();
    EXPECT_TRUE(input_.hasFocus());
    EXPECT_EQ(view_.selected(), "two");
}

TEST_F(SelectionFocus, MayLeaveAndComeBack)
{
    select();
    input_.setFocus();
    EXPECT_FALSE(view_.hasFocus());
    EXPECT_EQ(view_.selected(), "two");
    view_.view().setFocus(Qt::OtherFocusReason);
    EXPECT_TRUE(view_.hasFocus());
    EXPECT_EQ(view_.copied(), "two");
}

TEST_F(SelectionFocus, StaysWithOtherButtonsOnTheText)
{
    select();
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        view_.click(view_.place(5), button);
        EXPECT_EQ(view_.copied(), "two");
    }
    input_.setFocus();
    view_.click(view_.place(5), Qt::RightButton);
    EXPECT_TRUE(input_.hasFocus());
}

TEST_F(SelectionFocus, IsGivenUpWithTheSelection)
{
    select();
    view_.click(view_.place(2));
    EXPECT_EQ(view_.scene().focusItem(), nullptr);
    EXPECT_EQ(view_.item->childItems().size(), 0);
    select();
    view_.press(view_.place(4));
    view_.moveTo(view_.place(6));
    view_.release(view_.place(4));
    EXPECT_EQ(view_.scene().focusItem(), nullptr) << "nothing is selected in the end";
}

TEST_F(SelectionFocus, TakesTheKeysOfTheSelectionFromShortcuts)
{
    select();
    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        bool isTaken;
    } rows[] = {{Qt::Key_C, Qt::ControlModifier, true},  {Qt::Key_A, Qt::ControlModifier, true},
                {Qt::Key_Left, Qt::ShiftModifier, true}, {Qt::Key_Left, Qt::NoModifier, false},
                {Qt::Key_V, Qt::ControlModifier, false}, {Qt::Key_A, Qt::NoModifier, false}};
    for (const auto& row : rows) {
        QKeyEvent event(QEvent::ShortcutOverride, row.key, row.modifiers);
        event.ignore();
        QApplication::sendEvent(&view_.view(), &event);
        EXPECT_EQ(event.isAccepted(), row.isTaken) << row.key;
        if (!row.isTaken)
            view_.pressKey(row.key, row.modifiers);
    }
    EXPECT_EQ(view_.selected(), "two");
}

// ----- One at a time

using SelectionInScene = SelectionInWindow;

TEST_F(SelectionInScene, EndsWithAPressAnywhereElse)
{
    for (const QPointF& place : {view_.nowhere(), view_.place(1), view_.place(14)}) {
        select();
        view_.press(place);
        EXPECT_EQ(view_.selected(), "");
        view_.release(place);
    }
}

TEST_F(SelectionInScene, EndsAlsoAfterTheFocusWasElsewhere)
{
    select();
    input_.setFocus();
    view_.click(view_.nowhere());
    EXPECT_EQ(view_.selected(), "");
    EXPECT_TRUE(input_.hasFocus());
}

TEST_F(SelectionInScene, StaysWithOtherButtons)
{
    select();
    view_.click(view_.nowhere(), Qt::RightButton);
    view_.click(view_.place(1), Qt::MiddleButton);
    EXPECT_EQ(view_.selected(), "two");
}

TEST_F(SelectionInScene, EndsWhenAnotherBegins)
{
    const auto other = makeOther();
    select();
    const QPointF place = other->sceneBoundingRect().topLeft() + QPointF(1, 10);
    view_.drag(place, place + QPointF(100, 0));
    EXPECT_EQ(view_.selected(), "");
    EXPECT_EQ(other->SelectedText(), QStringLiteral("other"));
    view_.item->SelectAll();
    EXPECT_FALSE(other->HasSelection());
    EXPECT_EQ(view_.selected(), kOneTwoThree.toStdString());
    view_.hold(Qt::ShiftModifier);
    view_.click(place);
    EXPECT_EQ(view_.selected(), "");
}

TEST_F(SelectionInScene, EndsWithTheTextAndOutsideOfTheScene)
{
    select();
    view_.item->InsertRichText(QStringLiteral("!"), true);
    EXPECT_EQ(view_.selected(), "");
    select();
    view_.item->setPlainText(kOneTwoThree);
    EXPECT_EQ(view_.selected(), "");
    select();
    view_.scene().removeItem(view_.item.get());
    EXPECT_EQ(view_.selected(), "");
    view_.scene().addItem(view_.item.get());
    select();
    EXPECT_EQ(view_.selected(), "two");
}

TEST_F(SelectionInScene, StaysInAnotherLayout)
{
    view_.selectAll();
    view_.item->SetFixedItemWidth(60);
    view_.item->SetMaxLineCount(1);
    view_.item->SetElide(true);
    EXPECT_EQ(view_.selected(), kOneTwoThree.toStdString());
    QFont large = view_.item->font();
    large.setPixelSize(40);
    view_.item->setFont(large);
    view_.item->document();
    view_.view().grab();
    EXPECT_EQ(view_.copied(), kOneTwoThree.toStdString());
}

TEST_F(SelectionInScene, GoesOnInAnotherLayout)
{
    view_.press(view_.place(4));
    view_.moveTo(view_.place(7));
    view_.item->SetFixedItemWidth(60);
    view_.item->SetFixedItemWidth(-1);
    view_.moveTo(view_.place(9));
    EXPECT_EQ(view_.selected(), "two, ");
    view_.item->InsertRichText(QStringLiteral("!"), true);
    view_.moveTo(view_.place(2));
    view_.release(view_.place(2));
    EXPECT_EQ(view_.selected(), "") << "the text has changed";
}

TEST_F(SelectionInScene, MayChangeWithTheDocument)
{
    QTextCursor cursor(view_.item->document());
    view_.selectAll();
    cursor.movePosition(QTextCursor::NextWord, QTextCursor::KeepAnchor, 3);
    cursor.removeSelectedText();
    view_.view().grab();
    EXPECT_EQ(view_.copied(), "three");
    view_.extend(Qt::Key_Left);
    view_.extend(Qt::Key_Up);
    EXPECT_LE(view_.selected().size(), 5U);
}

TEST(SelectionOfDeletedItem, LeavesTheSceneUsable)
{
    for (const bool isReleased : {false, true}) {
        QGraphicsScene scene;
        QGraphicsView view(&scene);
        auto* const item = new TextItem;
        item->setTextInteractionFlags(Qt::TextSelectableByMouse);
        item->InsertRichText(kOneTwoThree, true);
        plix::test::CardView card(*item);
        QApplication::setActiveWindow(&card.view());
        const QPointF place = item->sceneBoundingRect().center();
        card.press(place);
        card.moveTo(place + QPointF(30, 0));
        ASSERT_TRUE(item->HasSelection());
        if (isReleased)
            card.release(place + QPointF(30, 0));
        delete item;
        EXPECT_EQ(card.scene().focusItem(), nullptr);
        EXPECT_EQ(card.scene().mouseGrabberItem(), nullptr);
        card.moveTo(place);
        card.release(place);
        card.click(place);
        card.pressKey(Qt::Key_C, Qt::ControlModifier);
    }
}

// Slots may do anything when the focus changes.
TEST(SelectionOfDeletedItem, MayBeDeletedByWhoFollowsTheFocus)
{
    for (const bool isAtStart : {true, false}) {
        QPointer<TextItem> item = new TextItem;
        item->setTextInteractionFlags(Qt::TextSelectableByMouse);
        item->InsertRichText(kOneTwoThree, true);
        plix::test::CardView view(*item);
        QApplication::setActiveWindow(&view.view());
        const QPointF place = item->sceneBoundingRect().center();
        const QObject context;
        QObject::connect(&view.scene(), &QGraphicsScene::focusItemChanged, &context,
                         [&](const QGraphicsItem* focused) {
                             if ((focused != nullptr) == isAtStart)
                                 delete item.data();
                         });
        view.drag(place, place + QPointF(30, 0));
        EXPECT_EQ(item.isNull(), isAtStart);
        view.click(view.nowhere());
        EXPECT_TRUE(item.isNull());
    }
}

// ----- What is below the text

// Accepts clicks, and records them.
class Below : public QGraphicsRectItem {
public:
    Below()
        : QGraphicsRectItem(-500, -500, 2000, 1000)
    {
        setZValue(-1);
    }

    std::vector<QEvent::Type> events;
    std::function<void()> onPress;
    bool accepts = true;

protected:
    void mousePressEvent(QGraphicsSceneMouseEvent* event) override { add(event); }
    void mouseReleaseEvent(QGraphicsSceneMouseEvent* event) override { add(event); }
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent* event) override { add(event); }
    void mouseMoveEvent(QGraphicsSceneMouseEvent* event) override { add(event); }

private:
    void add(QGraphicsSceneMouseEvent* event)
    {
        EXPECT_EQ(event->scenePos(), mapToScene(event->pos()));
        EXPECT_EQ(event->button(), Qt::LeftButton);
        const QPointF distance = event->buttonDownScenePos(Qt::LeftButton) - event->scenePos();
        EXPECT_LE(distance.manhattanLength(), 3);
        event->setAccepted(accepts);
        events.push_back(event->type());
        if (const std::function<void()> act = std::exchange(onPress, {}))
            act();
    }
};

using Events = std::vector<QEvent::Type>;
const Events kClick {QEvent::GraphicsSceneMousePress, QEvent::GraphicsSceneMouseRelease};

class BelowSelection : public SelectionInWindow {
protected:
    BelowSelection()
    {
        below_->setPos(7, 3);
        view_.scene().addItem(below_);
    }

    Below* const below_ = new Below;
};

TEST_F(BelowSelection, GetsClicks)
{
    view_.click(view_.place(4));
    EXPECT_EQ(below_->events, kClick);
    EXPECT_EQ(view_.scene().mouseGrabberItem(), nullptr);
    below_->events.clear();
    view_.item->setTextInteractionFlags(Qt::NoTextInteraction);
    view_.click(view_.place(4));
    EXPECT_EQ(below_->events, kClick) << "as without a selection";
}

TEST_F(BelowSelection, GetsNothingOfASelection)
{
    select();
    EXPECT_EQ(below_->events, Events {});
    view_.press(view_.place(4));
    view_.moveTo(view_.place(7));
    view_.release(view_.place(4));
    EXPECT_EQ(below_->events, Events {});
    view_.doubleClick(view_.on(5));
    EXPECT_EQ(below_->events, kClick) << "the first of two clicks";
}

TEST_F(BelowSelection, GetsAClickWhileOtherButtonsAreDown)
{
    below_->setAcceptedMouseButtons(Qt::LeftButton);
    view_.press(view_.place(4), Qt::RightButton);
    view_.click(view_.place(4));
    view_.release(view_.place(4), Qt::RightButton);
    EXPECT_EQ(below_->events, kClick);
    below_->events.clear();
    view_.press(view_.place(4));
    view_.press(view_.place(4), Qt::RightButton);
    view_.release(view_.place(4));
    view_.release(view_.place(4), Qt::RightButton);
    EXPECT_EQ(below_->events, kClick);
    EXPECT_EQ(view_.scene().mouseGrabberItem(), nullptr);
}

TEST_F(BelowSelection, MayIgnoreAClick)
{
    below_->accepts = false;
    auto* const lowest = new Below;
    lowest->setZValue(-2);
    view_.scene().addItem(lowest);
    view_.click(view_.place(4));
    EXPECT_EQ(below_->events, Events {QEvent::GraphicsSceneMousePress});
    EXPECT_EQ(lowest->events, kClick);
    below_->setAcceptedMouseButtons(Qt::RightButton);
    view_.click(view_.place(4));
    EXPECT_EQ(below_->events, Events {QEvent::GraphicsSceneMousePress});
}

TEST_F(BelowSelection, MayDeleteEverything)
{
    auto* const lowest = new Below;
    lowest->setZValue(-2);
    view_.scene().addItem(lowest);
    below_->accepts = false;
    below_->onPress = [lowest] { delete lowest; };
    view_.click(view_.place(4));
    below_->accepts = true;
    bool isDeleted = false;
    below_->onPress = [&] {
        isDeleted = true;
        delete below_;
    };
    view_.click(view_.place(4));
    EXPECT_TRUE(isDeleted);
    EXPECT_EQ(view_.scene().mouseGrabberItem(), nullptr);
}

TEST_F(BelowSelection, GetsThePressOnlyOnceInScenesThatLook)
{
    int presses = 0;
    class Counter : public QObject {
    public:
        explicit Counter(int& count)
            : count_(count)
        {
        }
        bool eventFilter(QObject*, QEvent* event) override
        {
            count_ += event->type() == QEvent::GraphicsSceneMousePress;
            return false;
        }

    private:
        int& count_;
    } counter(presses);
    view_.scene().installEventFilter(&counter);
    view_.click(view_.place(4));
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(below_->events, kClick);
}

TEST_F(BelowSelection, LeavesTheHandOfTheViewAlone)
{
    view_.view().setDragMode(QGraphicsView::ScrollHandDrag);
    view_.view().resize(60, 30);
    const QPointF from = view_.place(2);
    const QPoint before = view_.view().mapFromScene(from);
    view_.drag(from, view_.place(4));
    EXPECT_EQ(view_.view().mapFromScene(from), before) << "the text is selected, not moved";
    EXPECT_EQ(view_.selected(), "e ");
}

// ----- The context menu

class SelectionMenu : public SelectionInWindow {
private:
    const plix::test::PlatformMessages platform_;
};

QAction& actionOf(const QMenu& menu, const char* name)
{
    return *menu.findChild<QAction*>(QLatin1String(name));
}

std::vector<std::string> textsOf(const QMenu& menu)
{
    std::vector<std::string> texts;
    for (const QAction* action : menu.actions())
        texts.push_back(action->text().toStdString());
    return texts;
}

using Texts = std::vector<std::string>;

TEST_F(SelectionMenu, CopiesAndSelectsAll)
{
    QMenu* menu = view_.openMenu(view_.place(2));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(textsOf(*menu), (Texts {"&Copy\tCtrl+C", "Select All\tCtrl+A"}));
    EXPECT_FALSE(actionOf(*menu, "edit-copy").isEnabled());
    actionOf(*menu, "select-all").trigger();
    menu->close();
    EXPECT_EQ(view_.selected(), kOneTwoThree.toStdString());
    EXPECT_TRUE(view_.hasFocus());

    menu = view_.openMenu(view_.place(2));
    ASSERT_NE(menu, nullptr);
    QApplication::clipboard()->clear();
    actionOf(*menu, "edit-copy").trigger();
    menu->close();
    EXPECT_EQ(QApplication::clipboard()->text(), kOneTwoThree);
}

TEST_F(SelectionMenu, CopiesTheWholeTextWhereTheMouseDoesNotSelect)
{
    view_.item->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    QMenu* const menu = view_.openMenu(view_.place(2));
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(textsOf(*menu), Texts {"&Copy"});
    QApplication::clipboard()->clear();
    actionOf(*menu, "edit-copy").trigger();
    menu->close();
    EXPECT_EQ(QApplication::clipboard()->text(), kOneTwoThree);
    EXPECT_TRUE(input_.hasFocus());
}

TEST_F(SelectionMenu, IsThatOfTheHostWithoutInteraction)
{
    view_.item->setTextInteractionFlags(Qt::NoTextInteraction);
    EXPECT_EQ(view_.openMenu(view_.place(2)), nullptr);
    view_.item->setTextInteractionFlags(Qt::TextSelectableByMouse);
    view_.view().setContextMenuPolicy(Qt::CustomContextMenu);
    EXPECT_EQ(view_.openMenu(view_.place(2)), nullptr);
}

TEST_F(SelectionMenu, OutlivesItsItem)
{
    auto other = makeOther();
    QMenu* const menu = view_.openMenu(other->sceneBoundingRect().center());
    ASSERT_NE(menu, nullptr);
    other.reset();
    actionOf(*menu, "select-all").trigger();
    menu->close();
}

// Qt's translations know the menus of Qt's texts.
class KoreanMenus : public QTranslator {
public:
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        const bool isOfTexts = QLatin1String(context) == QLatin1String("QWidgetTextControl");
        return isOfTexts && QLatin1String(text) == QLatin1String("&Copy")
            ? QStringLiteral("복사(&C)")
            : QString();
    }
    bool isEmpty() const override { return false; }
};

TEST_F(SelectionMenu, IsInTheLanguageOfTheHost)
{
    KoreanMenus translator;
    QApplication::installTranslator(&translator);
    QMenu* const menu = view_.openMenu(view_.place(2));
    QApplication::removeTranslator(&translator);
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(textsOf(*menu), (Texts {"복사(&C)\tCtrl+C", "Select All\tCtrl+A"}));
    menu->close();
}

// ----- Cursors and tooltips

TEST(SelectionCursor, IsAnIBeamOverATextThatCanBeSelected)
{
    SelectionView view(kOneTwoThree);
    const Qt::CursorShape elsewhere = view.cursor();
    view.moveTo(view.place(2));
    EXPECT_EQ(view.cursor(), Qt::IBeamCursor);
    view.moveTo(view.nowhere());
    EXPECT_EQ(view.cursor(), elsewhere);
    EXPECT_FALSE(view.item->hasCursor());
    view.item->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
    view.moveTo(view.place(2));
    EXPECT_EQ(view.cursor(), elsewhere);
}

TEST(SelectionCursor, IsAHandOverAMention)
{
    SelectionView view;
    view.item->SetMarkupEnabled(true);
    view.item->InsertRichText(QStringLiteral("mmm <m user=\"1\">mmm</m> mmm"), true);
    qint64 clicked = 0;
    QObject::connect(view.item.get(), &TextItem::MentionClicked,
                     [&clicked](qint64 user) { clicked = user; });
    view.moveTo(view.on(1));
    EXPECT_EQ(view.cursor(), Qt::IBeamCursor);
    view.moveTo(view.on(5));
    EXPECT_EQ(view.cursor(), Qt::PointingHandCursor);
    view.click(view.on(5));
    EXPECT_EQ(clicked, 1);
    view.moveTo(view.on(9));
    EXPECT_EQ(view.cursor(), Qt::IBeamCursor);
    view.drag(view.place(2), view.place(9));
    EXPECT_EQ(view.selected(), "m mmm m");
    clicked = 0;
    view.hold(Qt::ShiftModifier);
    view.click(view.place(5));
    EXPECT_EQ(clicked, 0) << "Shift extends";
    EXPECT_EQ(view.selected(), "m m");
}

TEST(SelectionCursor, IsThatOfTheItemAgainWhenItIsDeletedUnderTheMouse)
{
    SelectionView view(kOneTwoThree);
    view.moveTo(view.place(2));
    view.item->InsertRichText(QStringLiteral("!"), true);
    EXPECT_FALSE(view.item->hasCursor());
    auto* const other = new TextItem;
    other->InsertRichText(kOneTwoThree, true);
    other->setTextInteractionFlags(Qt::TextSelectableByMouse);
    other->setPos(0, 100);
    view.add(*other);
    view.moveTo(other->sceneBoundingRect().center());
    EXPECT_TRUE(other->hasCursor());
    delete other;
}

class SelectionToolTip : public testing::Test {
private:
    const plix::test::PlatformMessages platform_;
};

TEST_F(SelectionToolTip, ShowsATextThatIsElided)
{
    SelectionView view(QStringLiteral("if a < b & c > d, <b>stop</b>"));
    EXPECT_EQ(view.toolTipAt(view.place(2)), QString());
    view.item->SetElide(true);
    view.item->SetMaxLineCount(1);
    view.item->SetFixedItemWidth(100);
    const QString shown = view.toolTipAt(view.place(3));
    EXPECT_TRUE(shown.contains(view.item->toPlainText().toHtmlEscaped())) << shown.toStdString();
    EXPECT_EQ(view.toolTipAt(view.nowhere()), QString());
    view.item->SetFixedItemWidth(-1);
    EXPECT_EQ(view.toolTipAt(view.place(2) + QPointF(1, 0)), QString());
}

TEST_F(SelectionToolTip, LeavesTheItemItsOwn)
{
    SelectionView view(kOneTwoThree);
    view.item->SetElide(true);
    view.item->SetMaxLineCount(1);
    view.item->SetFixedItemWidth(60);
    view.item->setToolTip(QStringLiteral("its own"));
    EXPECT_EQ(view.toolTipAt(view.place(2)), QStringLiteral("its own"));
    view.moveTo(view.nowhere());
    EXPECT_EQ(view.item->toolTip(), QStringLiteral("its own"));
    view.item->setToolTip(QString());
    view.item->setTextInteractionFlags(Qt::NoTextInteraction);
    EXPECT_EQ(view.toolTipAt(view.place(2)), QString());
}

TEST_F(SelectionToolTip, IsOfBoundedSize)
{
    SelectionView view(QStringLiteral("a\u0301\u0302\u0303\u0304").repeated(100'000));
    view.item->SetElide(true);
    view.item->SetMaxLineCount(1);
    view.item->SetFixedItemWidth(100);
    const QString shown = view.toolTipAt(view.place(1));
    EXPECT_GT(shown.size(), 100);
    EXPECT_LT(shown.size(), 3000);
}

} // namespace
