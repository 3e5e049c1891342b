// The items of a graphics view, as a client of QAccessible finds them.
#include "ChildWalk.h"

#include "support/AccessibilityClient.h"
#include "support/AccessibleTree.h"

#include <kestro_control/AccessibleGraphicsObject.h>
#include <kestro_control/GraphicsViewAccessibility.h>
#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QGraphicsWidget>
#include <QLineEdit>
#include <QPointer>
#include <QScrollBar>

#include <memory>

namespace plix::test {
namespace {

using Updates = std::vector<std::string>;

// An item of another library.
class ForeignItem : public QGraphicsObject {
    Q_OBJECT

public:
    ForeignItem(const QString& name, const QRectF& rect, QGraphicsItem* parent = nullptr)
        : QGraphicsObject(parent)
        , rect_(rect)
    {
        setProperty("accessibleName", name);
    }

    QRectF boundingRect() const override { return rect_; }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override { }

private:
    QRectF rect_;
};

const QRectF kRect(0, 0, 30, 10);

class AccessibleView : public testing::Test {
protected:
    AccessibleView()
    {
        kestro::InstallGraphicsViewAccessibility();
        prepare(view_);
        view_.show();
        view_.horizontalScrollBar()->setValue(0);
        view_.verticalScrollBar()->setValue(0);
        QApplication::setActiveWindow(&view_);
        QApplication::processEvents(); // places the scroll bars
    }

    void prepare(QGraphicsView& view)
    {
        scene_.setSceneRect(0, 0, 600, 400);
        view.setScene(&scene_);
        view.setFrameStyle(QFrame::NoFrame);
        view.setAlignment(Qt::AlignTop | Qt::AlignLeft);
        view.setTransformationAnchor(QGraphicsView::NoAnchor);
        view.resize(200, 100);
    }

    ForeignItem* add(const char* name, const QPointF& place, QGraphicsItem* parent = nullptr)
    {
        auto* const item = new ForeignItem(QString::fromLatin1(name), kRect, parent);
        item->setPos(place);
        if (!parent)
            scene_.addItem(item);
        return item;
    }

    ForeignItem* addFocusable(const char* name, const QPointF& place)
    {
        ForeignItem* const item = add(name, place);
        item->setFlag(QGraphicsItem::ItemIsFocusable);
        return item;
    }

    // The names of the items in the view, without its scroll bars.
    std::vector<std::string> names() { return namesIn(view_); }

    static std::vector<std::string> namesIn(QGraphicsView& view)
    {
        std::vector<std::string> found;
        QAccessibleInterface& root = accessible(&view);
        for (int i = 0; i < root.childCount(); ++i) {
            if (!root.child(i)->object()->isWidgetType())
                found.push_back(nameOf(*root.child(i)));
        }
        return found;
    }

    QPoint onScreen(const QPoint& pixel) { return view_.viewport()->mapToGlobal(pixel); }

    QAccessibleInterface* foundAt(const QPoint& pixel)
    {
        const QPoint place = onScreen(pixel);
        return accessible(&view_).childAt(place.x(), place.y());
    }

    QGraphicsScene scene_;
    QGraphicsView view_;
};

// ----- The tree

TEST_F(AccessibleView, HasTheTopItemsInReadingOrder)
{
    add("front", {0, 0})->setZValue(1);
    add("below", {0, 40});
    add("right", {50, 20});
    add("left", {0, 20});
    add("behind", {0, 300})->setZValue(-1);
    EXPECT_EQ(names(), (Updates {"behind", "left", "right", "below", "front"}));
}

TEST_F(AccessibleView, HasTheItemsInsideOfItemsInTheirStackingOrder)
{
    ForeignItem* const outer = add("outer", {0, 0});
    add("later", {0, 0}, outer);
    add("last", {0, 0}, outer);
    add("first", {0, 20}, outer)->setZValue(-1);
    EXPECT_EQ(treeOf(accessible(outer)),
              "Grouping outer\n  Grouping first\n  Grouping later\n  Grouping last\n");
}

TEST_F(AccessibleView, ReplacesItemsThatAreNoObjectsWithTheirChildren)
{
    auto* const plain = scene_.addRect(kRect);
    ForeignItem* const inner = add("in plain", {0, 0}, plain);
    add("in both", {0, 0}, new QGraphicsRectItem(kRect, plain));
    EXPECT_EQ(names(), (Updates {"in plain", "in both"}));
    EXPECT_EQ(accessible(inner).parent(), &accessible(&view_));
}

TEST_F(AccessibleView, CanBeWalkedInAllDirections)
{
    ForeignItem* const outer = add("outer", {0, 0});
    add("inner", {0, 0}, new QGraphicsRectItem(kRect, outer));
    scene_.addItem(new QGraphicsWidget);
    scene_.addWidget(new QLineEdit);
    scene_.addItem(new TextItem);
    int count = 0;
    forEachAccessible(accessible(&view_), [&](QAccessibleInterface&) { ++count; });
    EXPECT_GT(count, 5);
}

TEST_F(AccessibleView, HasItsScrollBarsAfterTheItems)
{
    add("item", {0, 0});
    const std::string tree = treeOf(accessible(&view_));
    EXPECT_LT(tree.find("Grouping item"), tree.find("ScrollBar"));
    EXPECT_NE(tree.find("ScrollBar"), std::string::npos);
}

TEST_F(AccessibleView, HasNoNameForAnItemThatGivesNone)
{
    auto* const item = new QGraphicsWidget;
    item->setObjectName(QStringLiteral("internal"));
    scene_.addItem(item);
    EXPECT_EQ(treeOf(accessible(item)), "Grouping\n");
}

TEST_F(AccessibleView, HasTheTextOfTextItems)
{
    QGraphicsTextItem* const text = scene_.addText(QStringLiteral("Tea"));
    EXPECT_EQ(treeOf(accessible(text)), "StaticText Tea\n");
    text->setTextInteractionFlags(Qt::TextEditorInteraction);
    EXPECT_EQ(treeOf(accessible(text)), "EditableText Tea\n");
    auto* const own = new TextItem;
    own->setPlainText(QStringLiteral("Cake"));
    scene_.addItem(own);
    EXPECT_EQ(treeOf(accessible(own)), "StaticText Cake\n");
}

TEST_F(AccessibleView, HasTheWidgetOfAProxyInItsPlace)
{
    auto* const edit = new QLineEdit(QStringLiteral("Ann"));
    QGraphicsProxyWidget* const proxy = scene_.addWidget(edit);
    proxy->setPos(0, 20);
    add("before", {0, 0});
    QAccessibleInterface& root = accessible(&view_);
    EXPECT_EQ(root.child(1), &accessible(edit));
    EXPECT_EQ(roleOf(*root.child(1)), "EditableText");
    EXPECT_EQ(root.indexOfChild(&accessible(edit)), 1);
    EXPECT_EQ(root.child(1)->rect().topLeft(), onScreen({0, 20}));
}

TEST_F(AccessibleView, IsThePlaceOfTheItemsIfItIsTheFirstVisibleOne)
{
    ForeignItem* const item = add("item", {0, 0});
    QGraphicsView other;
    prepare(other);
    other.show();
    EXPECT_EQ(namesIn(other), Updates {});
    EXPECT_EQ(accessible(item).parent(), &accessible(&view_));
    view_.hide();
    EXPECT_EQ(names(), Updates {});
    EXPECT_EQ(namesIn(other), Updates {"item"});
    EXPECT_EQ(accessible(item).parent(), &accessible(&other));
    EXPECT_EQ(accessible(item).window(), other.windowHandle());
}

TEST_F(AccessibleView, FollowsWhatHappensToTheScene)
{
    ForeignItem* const item = add("one", {0, 0});
    add("two", {0, 20});
    EXPECT_EQ(names(), (Updates {"one", "two"}));
    item->setPos(0, 40);
    EXPECT_EQ(names(), (Updates {"two", "one"}));
    scene_.removeItem(item);
    EXPECT_EQ(names(), Updates {"two"});
    EXPECT_EQ(accessible(item).parent(), nullptr);
    EXPECT_EQ(accessible(item).rect(), QRect());
    EXPECT_TRUE(accessible(item).state().invisible);
    delete item;
    QGraphicsScene other;
    view_.setScene(&other);
    EXPECT_EQ(names(), Updates {});
    view_.setScene(nullptr);
    EXPECT_EQ(names(), Updates {});
}

TEST_F(AccessibleView, ForgetsItemsThatAreDeleted)
{
    ForeignItem* const outer = add("outer", {0, 0});
    const QAccessible::Id inner = QAccessible::uniqueId(&accessible(add("inner", {0, 0}, outer)));
    const QAccessible::Id root = QAccessible::uniqueId(&accessible(outer));
    EXPECT_NE(QAccessible::accessibleInterface(inner), nullptr);
    delete outer;
    EXPECT_EQ(QAccessible::accessibleInterface(inner), nullptr);
    EXPECT_EQ(QAccessible::accessibleInterface(root), nullptr);
    EXPECT_EQ(names(), Updates {});
}

TEST_F(AccessibleView, MayBeDeletedBeforeItsItems)
{
    auto view = std::make_unique<QGraphicsView>();
    prepare(*view);
    view_.hide();
    view->show();
    ForeignItem* const item = add("item", {0, 0});
    const QAccessible::Id root = QAccessible::uniqueId(accessible(item).parent());
    view.reset();
    EXPECT_EQ(QAccessible::accessibleInterface(root), nullptr);
    EXPECT_EQ(accessible(item).parent(), &accessible(&view_));
}

// The factory of an application that knows its items better.
class AccessibleSwitch : public kestro::AccessibleGraphicsObject {
public:
    using AccessibleGraphicsObject::AccessibleGraphicsObject;

    QAccessible::Role role() const override { return QAccessible::CheckBox; }

protected:
    bool CanPress() const override { return true; }
    void Press() override { delete object(); }
};

QAccessibleInterface* createSwitch(const QString& className, QObject* object)
{
    auto* const item = qobject_cast<ForeignItem*>(object);
    const bool isMeant =
        item && className == QLatin1String(ForeignItem::staticMetaObject.className());
    return isMeant ? new AccessibleSwitch(*item) : nullptr;
}

TEST_F(AccessibleView, UsesInterfacesOfTheApplication)
{
    QAccessible::installFactory(&createSwitch);
    const QPointer<ForeignItem> item = add("light", {0, 0});
    QAccessibleInterface& found = accessible(item);
    QAccessible::removeFactory(&createSwitch);
    EXPECT_EQ(treeOf(found), "CheckBox light\n");
    EXPECT_EQ(accessible(&view_).child(0), &found);
    item->setEnabled(false);
    EXPECT_FALSE(canPress(found));
    press(found);
    ASSERT_FALSE(item.isNull());
    item->setEnabled(true);
    press(found);
    EXPECT_TRUE(item.isNull());
}

// ----- Places

TEST_F(AccessibleView, KnowsWhereItemsAreOnTheScreen)
{
    ForeignItem* const item = add("item", {10, 20});
    ForeignItem* const inner = add("inner", {5, 5}, item);
    view_.move(70, 50);
    EXPECT_EQ(accessible(item).rect(), QRect(onScreen({10, 20}), QSize(30, 10)));
    item->setScale(0.5);
    EXPECT_EQ(accessible(item).rect(), QRect(onScreen({10, 20}), QSize(15, 5)));
    view_.scale(4, 4);
    EXPECT_EQ(accessible(item).rect(), QRect(onScreen({40, 80}), QSize(60, 20)));
    EXPECT_EQ(accessible(inner).rect(), QRect(onScreen({50, 90}), QSize(60, 20)));
    view_.horizontalScrollBar()->setValue(7);
    EXPECT_EQ(accessible(item).rect(), QRect(onScreen({33, 80}), QSize(60, 20)));
    item->setRotation(90);
    EXPECT_EQ(accessible(item).rect(), QRect(onScreen({13, 80}), QSize(20, 60)));
    item->setPos(1e18, -1e18);
    EXPECT_FALSE(accessible(item).rect().intersects(QRect(-10000, -10000, 20000, 20000)));
}

TEST_F(AccessibleView, GivesAnEmptyGroupTheRectangleOfItsChildren)
{
    auto* const group = new ForeignItem(QStringLiteral("group"), QRectF());
    scene_.addItem(group);
    add("inner", {30, 40}, group);
    EXPECT_EQ(accessible(group).rect(), QRect(onScreen({30, 40}), QSize(30, 10)));
    EXPECT_FALSE(accessible(group).state().offscreen);
}

TEST_F(AccessibleView, FindsWhatIsAtAPlace)
{
    add("lower", {0, 0});
    ForeignItem* const upper = add("upper", {20, 0});
    add("hidden", {20, 5})->hide();
    ForeignItem* const inner = add("inner", {0, 0}, upper);
    EXPECT_EQ(nameOf(*foundAt({25, 5})), "upper");
    EXPECT_EQ(nameOf(*foundAt({10, 5})), "lower");
    const QPoint place = onScreen({25, 5});
    EXPECT_EQ(accessible(upper).childAt(place.x(), place.y()), &accessible(inner));
    EXPECT_EQ(accessible(inner).childAt(place.x(), place.y()), nullptr);
    EXPECT_EQ(foundAt({100, 50}), &accessible(view_.viewport()));
    EXPECT_EQ(foundAt({-1, 5}), nullptr);
}

TEST_F(AccessibleView, FindsItsOwnWidgetsAboveTheItems)
{
    scene_.addItem(new ForeignItem(QStringLiteral("wide"), QRectF(0, 0, 600, 400)));
    const QPoint bar = view_.verticalScrollBar()->mapTo(&view_, QPoint(2, 2));
    EXPECT_EQ(roleOf(*foundAt(bar)->child(0)), "ScrollBar");
    QLineEdit edit(view_.viewport());
    edit.show();
    EXPECT_EQ(foundAt({3, 3}), &accessible(view_.viewport()));
    EXPECT_EQ(nameOf(*foundAt({3, 60})), "wide");
}

// ----- States

TEST_F(AccessibleView, TellsWhatIsOutOfSight)
{
    ForeignItem* const item = add("item", {0, 150});
    EXPECT_TRUE(accessible(item).state().offscreen);
    EXPECT_FALSE(accessible(item).state().invisible);
    view_.verticalScrollBar()->setValue(100);
    EXPECT_FALSE(accessible(item).state().offscreen);
    item->hide();
    EXPECT_TRUE(accessible(item).state().invisible);
    item->show();
    EXPECT_FALSE(accessible(item).state().invisible);
    view_.hide();
    EXPECT_TRUE(accessible(item).state().invisible);
}

TEST_F(AccessibleView, TellsThatAnItemIsClippedAway)
{
    ForeignItem* const outer = add("outer", {0, 0});
    ForeignItem* const inner = add("inner", {0, 50}, outer);
    EXPECT_FALSE(accessible(inner).state().offscreen);
    outer->setFlag(QGraphicsItem::ItemClipsChildrenToShape);
    EXPECT_TRUE(accessible(inner).state().offscreen);
}

TEST_F(AccessibleView, TellsWhatIsDisabled)
{
    ForeignItem* const item = addFocusable("item", {0, 0});
    EXPECT_FALSE(accessible(item).state().disabled);
    EXPECT_TRUE(accessible(item).state().focusable);
    item->setEnabled(false);
    EXPECT_TRUE(accessible(item).state().disabled);
    EXPECT_FALSE(accessible(item).state().focusable);
}

// ----- The keyboard focus

TEST_F(AccessibleView, TellsWhichItemHasTheFocus)
{
    ForeignItem* const one = addFocusable("one", {0, 0});
    ForeignItem* const two = addFocusable("two", {0, 20});
    view_.setFocus();
    EXPECT_EQ(accessible(&view_).focusChild(), &accessible(&view_));
    one->setFocus();
    EXPECT_EQ(accessible(&view_).focusChild(), &accessible(one));
    EXPECT_EQ(accessible(one).focusChild(), &accessible(one));
    EXPECT_EQ(accessible(two).focusChild(), nullptr);
    EXPECT_TRUE(accessible(one).state().focused);
    EXPECT_FALSE(accessible(two).state().focused);
}

TEST_F(AccessibleView, TellsWhichItemHasAFocusedItemInside)
{
    ForeignItem* const outer = add("outer", {0, 0});
    ForeignItem* const inner = add("inner", {0, 0}, outer);
    inner->setFlag(QGraphicsItem::ItemIsFocusable);
    view_.setFocus();
    inner->setFocus();
    EXPECT_EQ(accessible(outer).focusChild(), &accessible(inner));
    EXPECT_FALSE(accessible(outer).state().focused);
}

TEST_F(AccessibleView, TellsThatAnEmbeddedWidgetHasTheFocus)
{
    auto* const edit = new QLineEdit;
    scene_.addWidget(edit);
    view_.setFocus();
    edit->setFocus();
    EXPECT_EQ(accessible(&view_).focusChild(), &accessible(edit));
}

TEST_F(AccessibleView, LetsClientsMoveTheFocus)
{
    ForeignItem* const item = addFocusable("item", {0, 0});
    QAccessibleActionInterface* const actions = accessible(item).actionInterface();
    EXPECT_EQ(actions->actionNames(), QStringList {actions->setFocusAction()});
    EXPECT_EQ(accessible(add("other", {0, 20})).actionInterface()->actionNames(), QStringList());
    actions->doAction(actions->setFocusAction());
    EXPECT_TRUE(view_.hasFocus());
    EXPECT_TRUE(item->hasFocus());
}

TEST_F(AccessibleView, TellsClientsThatTheFocusMoves)
{
    ForeignItem* const one = addFocusable("one", {0, 0});
    ForeignItem* const two = addFocusable("two", {0, 20});
    const AccessibilityClient client;
    accessible(&view_);
    view_.setFocus();
    one->setFocus();
    EXPECT_EQ(client.takeUpdates(), Updates {}) << "Qt tells of the view itself first";
    QApplication::processEvents();
    EXPECT_EQ(client.takeUpdates(), Updates {"Focus: one"});
    two->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(client.takeUpdates(), Updates {"Focus: two"});
    two->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(client.takeUpdates(), Updates {});
    one->setFocus();
    delete one;
    QApplication::processEvents();
    EXPECT_EQ(client.takeUpdates(), Updates {});
}

TEST_F(AccessibleView, TellsClientsOfTheFocusInItsNextScene)
{
    const AccessibilityClient client;
    accessible(&view_);
    QGraphicsScene other;
    auto* const item = new ForeignItem(QStringLiteral("other"), kRect);
    item->setFlag(QGraphicsItem::ItemIsFocusable);
    other.addItem(item);
    view_.setScene(&other);
    item->setFocus();
    view_.clearFocus();
    view_.setFocus();
    QApplication::processEvents();
    EXPECT_EQ(client.takeUpdates(), Updates {"Focus: other"});
    view_.setScene(nullptr);
}

// ----- Costs

TEST_F(AccessibleView, TellsNothingWithoutAClient)
{
    accessible(&view_);
    view_.setFocus();
    addFocusable("one", {0, 0})->setFocus();
    QApplication::processEvents();
    EXPECT_EQ(AccessibilityClient::takeUpdates(), Updates {});
}

TEST(ChildWalk, FindsTheChildrenOnceForAWalk)
{
    kestro::InstallGraphicsViewAccessibility();
    ForeignItem one(QStringLiteral("one"), kRect);
    ForeignItem two(QStringLiteral("two"), kRect);
    auto three = std::make_unique<ForeignItem>(QStringLiteral("three"), kRect);
    QVector<QAccessibleInterface*> children {&accessible(&one), &accessible(&two),
                                             &accessible(three.get())};
    int searches = 0;
    kestro::ChildWalk walk([&] { return ++searches, children; });
    EXPECT_EQ(walk.At(0), children[0]);
    EXPECT_EQ(walk.At(1), children[1]);
    EXPECT_EQ(walk.At(2), children[2]);
    EXPECT_EQ(searches, 1);
    EXPECT_EQ(walk.At(3), nullptr);
    EXPECT_EQ(walk.At(-1), nullptr);
    children.removeFirst();
    EXPECT_EQ(walk.At(0), children[0]) << "a walk starts with what is there";
    searches = 0;
    three.reset();
    children.removeLast();
    EXPECT_EQ(walk.At(1), nullptr) << "deleted";
    EXPECT_EQ(searches, 1);
}

} // namespace
} // namespace plix::test

#include "GraphicsViewAccessibilityTest.moc"
