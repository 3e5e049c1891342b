// The Tab key walks through what can be clicked, and Enter and Space click it.
#include "CardTree.h"
#include "ClickHost.h"
#include "ClickableCard.h"
#include "ExampleCards.h"

#include "layout/PlixLimits.h"
#include "support/LiveView.h"
#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "ui/PlixFocusRing.h"
#include "ui/PlixFocusStop.h"
#include "ui/text/PlixTextUI.h"

#include <QApplication>
#include <QGraphicsScene>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <set>
#include <utility>

namespace plix::test {
namespace {

class Keyboard : public PlixTest {
protected:
    explicit Keyboard(const std::string& json = cardOfAllKinds())
        : card_(json, host_.setUp())
        , view_(*card_.root())
    {
        view_.view().setParent(&window_);
        view_.view().setFocusPolicy(Qt::TabFocus);
        window_.show();
        QApplication::setActiveWindow(&window_);
        input_.setFocus();
    }

    // Walks from the input line through the view and back to it. Clicks at each stop.
    Arrived walk(Qt::Key direction)
    {
        host_.arrived.clear();
        input_.setFocus();
        for (pressTab(direction); !input_.hasFocus(); pressTab(direction))
            view_.pressKey(Qt::Key_Return);
        return host_.arrived;
    }

    void pressTab(Qt::Key direction)
    {
        QKeyEvent event(QEvent::KeyPress, direction, Qt::NoModifier);
        QApplication::sendEvent(QApplication::focusWidget(), &event);
    }

    void walkTo(const std::string& uri)
    {
        do {
            view_.pressKey(Qt::Key_Tab);
            ASSERT_TRUE(view_.scene().focusItem()) << uri;
            view_.pressKey(Qt::Key_Return);
        } while (host_.arrived.back() != uri);
        host_.arrived.clear();
    }

    using Rects = std::vector<QRectF>;

    Rects ringRects() const
    {
        Rects rects;
        forEachItem(*card_.root(), [&](const QGraphicsItem& item) {
            if (dynamic_cast<const PlixFocusRing*>(&item))
                rects.push_back(item.sceneBoundingRect());
        });
        return rects;
    }

    // The ring does not cover the edges of letters.
    static QRectF ringAround(const QRectF& glyphs) { return glyphs.adjusted(-2, -2, 2, 2); }

    QRectF ringOfMention(int index) const
    {
        const auto* const text = card_.ui<PlixTextUI>({0, 3});
        return ringAround(text->mapRectToScene(text->MentionRect(index)));
    }

    ClickHost host_;
    QWidget window_;
    QLineEdit input_ {&window_};
    TestCard card_;
    CardView view_;
};

TEST_F(Keyboard, WalksThroughEverythingClickableInReadingOrder)
{
    EXPECT_EQ(walk(Qt::Key_Tab), kClickableParts);
}

TEST_F(Keyboard, WalksBackwards)
{
    EXPECT_EQ(walk(Qt::Key_Backtab), Arrived(kClickableParts.rbegin(), kClickableParts.rend()));
}

TEST_F(Keyboard, WalksFromCardToCard)
{
    const TestCard other(cardOfColumn({button(uriAction("other"))}), host_.setUp());
    view_.add(*other.root());
    Arrived all = kClickableParts;
    all.push_back("other");
    EXPECT_EQ(walk(Qt::Key_Tab), all);
}

TEST_F(Keyboard, ClicksWithEachKeyOfAButton)
{
    walkTo("text");
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Select})
        view_.pressKey(key);
    EXPECT_EQ(host_.arrived, Arrived(4, "text"));
}

TEST_F(Keyboard, DoesNotClickWithOtherKeys)
{
    for (const char* uri : {"box", "text", "user 7", "button"}) {
        walkTo(uri);
        view_.pressKey(Qt::Key_Return, Qt::ControlModifier);
        view_.pressKey(Qt::Key_A);
        view_.pressKey(Qt::Key_Escape);
        QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&view_.view(), &repeated);
        EXPECT_EQ(host_.arrived, Arrived()) << uri;
    }
}

TEST_F(Keyboard, DoesNotGetTheFocusByAClick)
{
    forEachItem(*card_.root(), [&](const QGraphicsItem& item) {
        view_.click(item.sceneBoundingRect().center());
        EXPECT_EQ(view_.scene().focusItem(), nullptr);
        EXPECT_TRUE(input_.hasFocus());
    });
    EXPECT_NE(host_.arrived, Arrived());
}

TEST_F(Keyboard, LeavesTheCardFromASelectionAndWalksAsBefore)
{
    const QRectF rect = card_.item({0, 3})->sceneBoundingRect();
    view_.drag(rect.topLeft() + QPointF(1, 5), rect.topLeft() + QPointF(15, 5));
    ASSERT_TRUE(card_.ui<PlixTextUI>({0, 3})->HasSelection());
    EXPECT_TRUE(view_.view().hasFocus());
    EXPECT_EQ(ringRects(), Rects {}) << "a selection is seen without a ring";
    pressTab(Qt::Key_Tab);
    EXPECT_TRUE(input_.hasFocus());
    EXPECT_EQ(walk(Qt::Key_Tab), kClickableParts);
    EXPECT_EQ(walk(Qt::Key_Backtab), Arrived(kClickableParts.rbegin(), kClickableParts.rend()));
    view_.click(view_.nowhere());
    EXPECT_EQ(walk(Qt::Key_Tab), kClickableParts);
}

TEST_F(Keyboard, HasARingAroundTheItemWithTheFocus)
{
    EXPECT_EQ(ringRects(), Rects {});
    walkTo("text");
    EXPECT_EQ(ringRects(), Rects {ringAround(card_.item({0, 2, 1})->sceneBoundingRect())});
    walkTo("image");
    EXPECT_EQ(ringRects(), Rects {card_.item({0, 2, 2})->sceneBoundingRect()});
    walkTo("bot 8");
    EXPECT_EQ(ringRects(), Rects {ringOfMention(1)});
    walk(Qt::Key_Tab);
    EXPECT_EQ(ringRects(), Rects {});
}

TEST_F(Keyboard, MovesTheRingWithTheText)
{
    walkTo("bot 8");
    const Rects before = ringRects();
    card_.ui<PlixTextUI>({0, 0})->setHeight(90);
    Plix_RefreshLayout(card_.controller());
    EXPECT_EQ(ringRects(), Rects {ringOfMention(1)});
    EXPECT_NE(ringRects(), before);
}

TEST_F(Keyboard, LeavesThePlaceToTheTextUnderIt)
{
    walkTo("text");
    QGraphicsItem* const text = card_.ui<PlixTextUI>({0, 2, 1});
    QGraphicsItem* const found = view_.scene().itemAt(text->sceneBoundingRect().center(), {});
    EXPECT_EQ(found, text) << found->toGraphicsObject()->metaObject()->className();
}

TEST_F(Keyboard, TellsTheViewWhereTheFocusIs)
{
    QRectF focused;
    const QObject context;
    QObject::connect(
        &view_.scene(), &QGraphicsScene::focusItemChanged, &context,
        [&](const QGraphicsItem* item) { focused = item ? item->sceneBoundingRect() : QRectF(); });
    walkTo("user 7");
    EXPECT_EQ(focused, ringOfMention(0));
}

TEST_F(Keyboard, MayDeleteTheItemsOfTheCard)
{
    for (const char* uri : {"box", "text", "image", "user 7", "bot 8", "button"}) {
        const TestCard card(cardOfAllKinds(), host_.setUp());
        CardView view(*card.root());
        host_.arrived = {"none"};
        while (host_.arrived.back() != uri) {
            host_.nextAction = [&] {
                if (host_.arrived.back() == uri)
                    delete card.item({0});
            };
            view.pressKey(Qt::Key_Tab);
            view.pressKey(Qt::Key_Return);
        }
        EXPECT_EQ(view.scene().focusItem(), nullptr);
    }
}

TEST_F(Keyboard, SkipsWhatIsDeleted)
{
    delete card_.item({0, 2, 1});
    delete card_.item({0, 1});
    EXPECT_EQ(walk(Qt::Key_Tab), (Arrived {"image", "user 7", "bot 8", "around", "button"}));
}

TEST(FocusRing, IsInFrontOfTheContent)
{
    const std::string photo =
        box("vertical", "", R"("width": "100px", "height": "40px", "backgroundColor": "#F0F0F0",)");
    const TestCard card(cardOfColumn({box("vertical", photo, kSmallSize + uriAction("box"))}));
    LiveView view(*card.root());
    const QImage before = view.shown();
    view.pressKey(Qt::Key_Tab);
    view.paintWhatChanged();
    const QRectF box = view.pixelsOf(card.item({0, 0})->sceneBoundingRect());
    EXPECT_EQ(QRectF(differenceOf(before, view.shown())), box);
    const QRect middle = box.toRect().adjusted(3, 3, -3, -3);
    EXPECT_EQ(before.copy(middle), view.shown().copy(middle));
}

class KeyboardOfNarrowCard : public Keyboard {
protected:
    KeyboardOfNarrowCard()
        : Keyboard(cardOfColumn({text("A text with the mention of " + mention(R"(user=\"7\")")),
                                 text(mention(R"(user=\"8\")"))},
                                R"("width": "90px",)"))
    {
    }
};

TEST_F(KeyboardOfNarrowCard, SkipsAMentionThatIsCutOff)
{
    EXPECT_EQ(walk(Qt::Key_Tab), Arrived {"user 8"});
}

// Points all over the items of a card.
std::vector<QPointF> pointsIn(QGraphicsItem& root)
{
    std::vector<QPointF> points;
    forEachItem(root, [&](const QGraphicsItem& item) {
        const QRectF rect = item.sceneBoundingRect();
        for (const double x : {0.1, 0.5, 0.9}) {
            for (const double y : {0.2, 0.5, 0.8})
                points.push_back(rect.topLeft() + QPointF(x * rect.width(), y * rect.height()));
        }
    });
    return points;
}

// The different actions that a host has got.
class ActionHost {
public:
    std::function<void(PlixDataController*)> setUp()
    {
        host_.onAction = [this](const ST_ACTION& action) {
            actions_.insert(action.type + action.label + action.uri + action.data + action.text);
        };
        return [this](PlixDataController* controller) {
            showExamplePictures(controller);
            host_.listenTo(controller);
        };
    }

    std::set<std::string> takeAll()
    {
        actions_.insert(host_.arrived.begin(), host_.arrived.end());
        host_.arrived.clear();
        return std::exchange(actions_, {});
    }

private:
    ClickHost host_;
    std::set<std::string> actions_;
};

using KeyboardOfExamples = PlixTest;

TEST_F(KeyboardOfExamples, ClicksWhatTheMouseClicks)
{
    std::size_t all = 0;
    for (const std::string& name : exampleNames()) {
        SCOPED_TRACE(name);
        ActionHost host;
        const TestCard card(exampleCard(name), host.setUp());
        CardView view(*card.root());
        for (const QPointF& point : pointsIn(*card.root()))
            view.click(point);
        const std::set<std::string> byMouse = host.takeAll();
        const QGraphicsItem* before = nullptr;
        while (true) {
            view.pressKey(Qt::Key_Tab);
            if (view.scene().focusItem() == std::exchange(before, view.scene().focusItem()))
                break; // the view has no other widget to pass the focus to
            view.pressKey(Qt::Key_Space);
        }
        EXPECT_EQ(host.takeAll(), byMouse);
        all += byMouse.size();
    }
    EXPECT_GT(all, 50U);
}

int mentionStopsOf(const TestCard& card)
{
    int stops = 0;
    forEachItem(*card.root(), [&stops](QGraphicsItem& item) {
        stops += dynamic_cast<const PlixFocusStop*>(&item) ? 1 : 0;
    });
    return stops;
}

TEST_F(Keyboard, StopsAtALimitedNumberOfMentions)
{
    for (const int more : {-1, 0, 1}) {
        std::string half;
        for (int i = 0; i < kMaximumMentionStops / 2; ++i)
            half += mention(R"(user=\"7\")") + " ";
        std::string rest = half;
        for (int i = 0; i < more; ++i)
            rest += mention(R"(user=\"7\")");
        if (more < 0)
            rest.erase(0, rest.find("</m>") + 5);
        ClickHost host;
        const TestCard card(cardOfColumn({text(half), text(rest)}), host.setUp());
        EXPECT_EQ(mentionStopsOf(card), kMaximumMentionStops + std::min(more, 0));
    }
}

} // namespace
} // namespace plix::test
