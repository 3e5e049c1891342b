// Mentions under the mouse: where they are hit, clicks and the mouse cursor. The
// events go through a view, as the user's do.
#include "Ink.h"
#include "support/RowName.h"

#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QMouseEvent>
#include <QTextDocument>

#include <limits>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace {

const QColor kMentionColor(255, 0, 0);
const QColor kTextColor(0, 0, 255);

struct Click {
    bool isBot;
    qint64 userNo;

    friend bool operator==(const Click&, const Click&) = default;
    friend std::ostream& operator<<(std::ostream& out, const Click& click)
    {
        return out << (click.isBot ? "bot " : "user ") << click.userNo;
    }
};

class PressCounter : public QGraphicsRectItem {
public:
    using QGraphicsRectItem::QGraphicsRectItem;

    int presses = 0;

private:
    void mousePressEvent(QGraphicsSceneMouseEvent*) override { ++presses; }
    void mouseDoubleClickEvent(QGraphicsSceneMouseEvent*) override { ++presses; }
};

// A view that shows a text item above another item.
class MentionView {
public:
    MentionView()
        : below_(-1000, -1000, 3000, 3000)
    {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(24);
        item_->setFont(font);
        item_->setDefaultTextColor(kTextColor);
        item_->SetMentionColor(kMentionColor);
        item_->SetMarkupEnabled(true);
        item_->setPos(20, 30);
        QObject::connect(item_.get(), &TextItem::MentionClicked, [this](qint64 userNo) {
            clicks.push_back({false, userNo});
        });
        QObject::connect(item_.get(), &TextItem::BotMentionClicked, [this](qint64 userNo) {
            clicks.push_back({true, userNo});
        });
        scene_.addItem(&below_);
        scene_.addItem(item_.get());
        scene_.setSceneRect(0, 0, 600, 400);
        view_.resize(620, 420);
        view_.show();
    }

    ~MentionView()
    {
        if (item_)
            scene_.removeItem(item_.get());
        scene_.removeItem(&below_);
    }

    TextItem& item() { return *item_; }
    void deleteItem() { item_.reset(); }
    int pressesBelow() const { return below_.presses; }

    // `at` in the coordinates of the item.
    void send(QEvent::Type type, const QPointF& at, Qt::MouseButton button = Qt::LeftButton)
    {
        const QPoint place = view_.mapFromScene(QPointF(20, 30) + at);
        const bool isDown = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
        if (isDown)
            down_ |= button;
        else if (type == QEvent::MouseButtonRelease)
            down_ &= ~Qt::MouseButtons(button);
        QMouseEvent event(type, place, view_.viewport()->mapToGlobal(place),
                          type == QEvent::MouseMove ? Qt::NoButton : button, down_, Qt::NoModifier);
        QApplication::sendEvent(view_.viewport(), &event);
    }

    void move(const QPointF& at) { send(QEvent::MouseMove, at); }
    void press(const QPointF& at) { send(QEvent::MouseButtonPress, at); }
    void release(const QPointF& at) { send(QEvent::MouseButtonRelease, at); }

    void clickAt(const QPointF& at)
    {
        press(at);
        release(at);
    }

    // The centres of some pixels that have exactly this colour.
    std::vector<QPointF> pixelsOf(const QColor& color)
    {
        const Ink ink(*item_);
        std::vector<QPointF> pixels;
        for (int y = 0; y < ink.picture().height(); ++y) {
            for (int x = y % 3; x < ink.picture().width(); x += 3) {
                if (ink.picture().pixelColor(x, y) == color)
                    pixels.push_back(QPointF(x + 0.5, y + 0.5) - QPointF(50, 50));
            }
        }
        return pixels;
    }

    std::vector<Click> clicks;

private:
    QGraphicsScene scene_;
    PressCounter below_;
    std::unique_ptr<TextItem> item_ = std::make_unique<TextItem>();
    QGraphicsView view_ {&scene_};
    Qt::MouseButtons down_;
};

struct HitRow {
    const char* name;
    const char* text;
    qreal width;
    int maxLines;

    friend std::ostream& operator<<(std::ostream& out, const HitRow& row)
    {
        return out << row.name;
    }
};

class MentionHit : public testing::TestWithParam<HitRow> {
protected:
    void SetUp() override
    {
        view_.item().SetElide(true);
        view_.item().SetFixedItemWidth(GetParam().width);
        view_.item().SetMaxLineCount(GetParam().maxLines);
        view_.item().InsertRichText(QString::fromUtf8(GetParam().text), true);
    }

    MentionView view_;
};

TEST_P(MentionHit, IsOnItsGlyphsOnly)
{
    const std::vector<QPointF> mentioned = view_.pixelsOf(kMentionColor);
    ASSERT_GT(mentioned.size(), 20U);
    for (const QPointF& at : mentioned) {
        view_.clicks.clear();
        view_.clickAt(at);
        ASSERT_EQ(view_.clicks, std::vector<Click>({{false, 5}})) << at.x() << ", " << at.y();
    }
    EXPECT_EQ(view_.pressesBelow(), 0);

    const std::vector<QPointF> others = view_.pixelsOf(kTextColor);
    ASSERT_GT(others.size(), 20U);
    view_.clicks.clear();
    for (const QPointF& at : others) {
        view_.clickAt(at);
        ASSERT_TRUE(view_.clicks.empty()) << at.x() << ", " << at.y();
    }
    EXPECT_EQ(view_.pressesBelow(), static_cast<int>(others.size()));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MentionHit,
    testing::Values(
        HitRow {"Latin", "HHH <m user=\"5\">Hans Huber</m> HH", -1, 0},
        HitRow {"LatinWrapped", "HHHH HH <m user=\"5\">Hans Huber the Third</m> HH HH", 150, 0},
        HitRow {"LatinBrokenAnywhere", "HHH <m user=\"5\">HansHuberTheThird</m> HH", 110, 0},
        HitRow {"LatinOverParagraphs", "H\nHH <m user=\"5\">Hans\nHuber</m> HH", -1, 0},
        HitRow {"LatinElidedBehindIt", "HHH <m user=\"5\">Hans</m> HHHHHHHHHHHHH", 180, 1},
        HitRow {"Hebrew", "שלום <m user=\"5\">עדה כהן</m> סוף", -1, 0},
        HitRow {"HebrewWrapped", "שלום לכולם <m user=\"5\">עדה כהן לוי ברק</m> סוף טוב", 130, 0},
        HitRow {"HebrewElidedBehindIt", "שלום <m user=\"5\">עדה</m> סוףסוףסוףסוף", 170, 1},
        HitRow {"HebrewInLatin", "HHH <m user=\"5\">עדה כהן</m> HH", -1, 0},
        HitRow {"LatinInHebrew", "שלום <m user=\"5\">Hans</m> סוף", -1, 0},
        HitRow {"BothDirections", "HH שלום <m user=\"5\">כהן HH עדה</m> שלום HH", -1, 0},
        HitRow {"BothDirectionsWrapped", "HH שלום <m user=\"5\">כהן HH עדה לוי HHH</m> HH שלום",
                140, 0},
        HitRow {"Arabic", "مرحبا <m user=\"5\">أحمد علي</m> بكم", -1, 0},
        HitRow {"Chinese", "晚上<m user=\"5\">王小明</m>一起吃饭吗", 100, 0}),
    plix::test::RowName());

TEST(MentionHitInElidedText, ExcludesTheEllipsis)
{
    for (const char* text :
         {"HH <m user=\"5\">Hans Huber the Third</m>", "שם <m user=\"5\">עדה כהן לוי ברק</m>"}) {
        MentionView view;
        view.item().SetElide(true);
        view.item().SetMaxLineCount(1);
        view.item().SetFixedItemWidth(150);
        view.item().InsertRichText(QString::fromUtf8(text), true);
        ASSERT_TRUE(view.item().IsElided());
        const bool endsAtLeft = QString::fromUtf8(text).front().direction() == QChar::DirR;
        const QRectF ink = Ink(view.item()).rect();
        const qreal ellipsisWidth =
            QFontMetricsF(view.item().font()).horizontalAdvance(QChar(0x2026));
        int hits = 0;
        for (const QPointF& at : view.pixelsOf(kMentionColor)) {
            const qreal toEnd = endsAtLeft ? at.x() - ink.left() : ink.right() - at.x();
            // Between the ellipsis and the last letter, either may be hit.
            if (toEnd > ellipsisWidth * 0.75 && toEnd < ellipsisWidth * 1.25)
                continue;
            view.clicks.clear();
            view.clickAt(at);
            EXPECT_EQ(view.clicks.empty(), toEnd < ellipsisWidth) << at.x() << " in " << text;
            hits += !view.clicks.empty();
        }
        EXPECT_GT(hits, 20);
    }
}

TEST(MentionHitInElidedText, ExcludesHiddenLines)
{
    MentionView view;
    view.item().InsertRichText(QStringLiteral("HHH\n<m user=\"5\">HHH</m>"), true);
    const std::vector<QPointF> mentioned = view.pixelsOf(kMentionColor);
    ASSERT_FALSE(mentioned.empty());
    view.item().SetMaxLineCount(1);
    view.clickAt(mentioned.front());
    EXPECT_TRUE(view.clicks.empty());
}

// ----- Clicks

class MentionClick : public testing::Test {
protected:
    MentionClick()
    {
        view_.item().InsertRichText(QStringLiteral("HHH <m user=\"-9223372036854775808\">HHH</m> "
                                                   "<m bot=\"77\">MMM</m><m bot=\"77\">WWW</m>"),
                                    true);
    }

    QPointF middleOf(const char* text)
    {
        const QString shown = view_.item().toPlainText();
        const int start = shown.lastIndexOf(QLatin1String(text));
        const QFontMetricsF metrics(view_.item().font());
        return {metrics.horizontalAdvance(shown.left(start))
                    + metrics.horizontalAdvance(QLatin1String(text)) / 2,
                view_.item().boundingRect().center().y()};
    }

    MentionView view_;
};

TEST_F(MentionClick, ReportsTheNumberOfAUser)
{
    view_.clickAt(middleOf("HHH"));
    EXPECT_EQ(view_.clicks, std::vector<Click>({{false, std::numeric_limits<qint64>::min()}}));
}

TEST_F(MentionClick, ReportsTheNumberOfABot)
{
    view_.clickAt(middleOf("MMM"));
    EXPECT_EQ(view_.clicks, std::vector<Click>({{true, 77}}));
}

TEST_F(MentionClick, CreatesNoTextControl)
{
    view_.clickAt(middleOf("MMM"));
    for (const QObject* child : view_.item().children())
        EXPECT_FALSE(child->inherits("QWidgetTextControl"));
}

TEST_F(MentionClick, NeedsPressAndReleaseOnTheSameMention)
{
    view_.press(middleOf("HHH"));
    view_.release(middleOf("MMM"));
    view_.press(middleOf("MMM"));
    view_.release(middleOf("WWW"));
    view_.press(middleOf("MMM"));
    view_.release({5, 10});
    EXPECT_TRUE(view_.clicks.empty());
    EXPECT_EQ(view_.pressesBelow(), 0);
    view_.press({5, 10});
    view_.release(middleOf("MMM"));
    EXPECT_TRUE(view_.clicks.empty());
    EXPECT_EQ(view_.pressesBelow(), 1);
}

TEST_F(MentionClick, MayLeaveTheMentionBetweenPressAndRelease)
{
    view_.press(middleOf("MMM"));
    view_.move({5, 10});
    view_.move(middleOf("MMM"));
    view_.release(middleOf("MMM"));
    EXPECT_EQ(view_.clicks.size(), 1U);
}

TEST_F(MentionClick, NeedsTheLeftButton)
{
    for (Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        view_.send(QEvent::MouseButtonPress, middleOf("MMM"), button);
        view_.send(QEvent::MouseButtonRelease, middleOf("MMM"), button);
    }
    EXPECT_TRUE(view_.clicks.empty());
    EXPECT_EQ(view_.pressesBelow(), 2);
}

TEST_F(MentionClick, HappensTwiceInADoubleClick)
{
    view_.clickAt(middleOf("MMM"));
    view_.send(QEvent::MouseButtonDblClick, middleOf("MMM"));
    view_.release(middleOf("MMM"));
    EXPECT_EQ(view_.clicks.size(), 2U);
    EXPECT_EQ(view_.pressesBelow(), 0);
}

TEST_F(MentionClick, DoesNotHappenWhenTheTextWasReplaced)
{
    const QString again = QStringLiteral("<m user=\"1\">MMMMMMMMMMMMMMMMMM</m>");
    view_.press(middleOf("MMM"));
    view_.item().ClearText();
    view_.item().InsertRichText(again, true);
    view_.release({20, 10});
    EXPECT_TRUE(view_.clicks.empty());
    view_.clickAt({20, 10});
    EXPECT_EQ(view_.clicks.size(), 1U);
}

TEST_F(MentionClick, MayDeleteTheItem)
{
    QObject::connect(&view_.item(), &TextItem::BotMentionClicked, [this] { view_.deleteItem(); });
    view_.clickAt(middleOf("MMM"));
    EXPECT_EQ(view_.clicks.size(), 1U);
}

TEST_F(MentionClick, DoesNotHappenInAnEditableItem)
{
    view_.item().SetReadOnly(false);
    view_.clickAt(middleOf("MMM"));
    EXPECT_TRUE(view_.clicks.empty());
    view_.item().SetReadOnly(true);
    view_.clickAt(middleOf("MMM"));
    EXPECT_EQ(view_.clicks.size(), 1U);
}

TEST(MentionByNumber, CountsInTheOrderOfTheText)
{
    MentionView view;
    TextItem& item = view.item();
    EXPECT_EQ(item.MentionCount(), 0);
    item.InsertRichText(QStringLiteral("by <m bot=\"2\">Bob</m>"), true);
    item.InsertRichText(QStringLiteral("<m user=\"1\">Ann</m> "), false);
    ASSERT_EQ(item.MentionCount(), 2);
    EXPECT_LT(item.MentionRect(0).right(), item.MentionRect(1).left());
    for (const int number : {1, 0, -1, 2})
        item.ClickMention(number);
    EXPECT_EQ(view.clicks, (std::vector<Click> {{true, 2}, {false, 1}}));
}

TEST(MentionByNumber, HasTheRectangleOfItsGlyphs)
{
    MentionView view;
    TextItem& item = view.item();
    item.InsertRichText(QStringLiteral("ab <m user=\"1\">Ann and Bob</m> cd"), true);
    item.SetFixedItemWidth(90);
    const QRectF rect = item.MentionRect(0);
    EXPECT_GT(rect.height(), 40) << "of two lines";
    for (const QPointF& pixel : view.pixelsOf(kMentionColor))
        EXPECT_TRUE(rect.contains(pixel));
    EXPECT_EQ(item.MentionRect(1), QRectF());
    EXPECT_EQ(item.MentionRect(-1), QRectF());
}

TEST(MentionByNumber, HasNoRectangleWhereItIsNotShown)
{
    MentionView view;
    TextItem& item = view.item();
    item.InsertRichText(QStringLiteral("a\n<m user=\"1\">Ann</m>"), true);
    item.SetMaxLineCount(1);
    EXPECT_EQ(item.MentionCount(), 1);
    EXPECT_TRUE(item.MentionRect(0).isEmpty());
    item.SetMaxLineCount(2);
    EXPECT_FALSE(item.MentionRect(0).isEmpty());
    item.ClearText();
    EXPECT_EQ(item.MentionCount(), 0);
    EXPECT_TRUE(item.MentionRect(0).isEmpty());
}

TEST(MentionMarkup, IsNotClickableWhileMarkupIsDisabled)
{
    MentionView view;
    view.item().SetMarkupEnabled(false);
    view.item().InsertRichText(QStringLiteral("<m user=\"5\">HHHH</m>"), true);
    EXPECT_TRUE(view.pixelsOf(kMentionColor).empty());
    for (const QPointF& at : view.pixelsOf(kTextColor))
        view.clickAt(at);
    EXPECT_TRUE(view.clicks.empty());
}

TEST(TextNextToAMention, IsNotClickable)
{
    MentionView view;
    view.item().InsertRichText(QStringLiteral("<m user=\"5\">MM</m>"), true);
    view.item().InsertRichText(QStringLiteral("HH"), true);
    view.item().InsertRichText(QStringLiteral("HH"), false);
    for (const QPointF& at : view.pixelsOf(kTextColor))
        view.clickAt(at);
    EXPECT_TRUE(view.clicks.empty());
}

// ----- The mouse cursor

using MentionCursor = MentionClick;

TEST_F(MentionCursor, IsAPointingHand)
{
    view_.move({5, 10});
    EXPECT_FALSE(view_.item().hasCursor());
    view_.move(middleOf("MMM"));
    EXPECT_EQ(view_.item().cursor().shape(), Qt::PointingHandCursor);
    view_.move({5, 10});
    EXPECT_FALSE(view_.item().hasCursor());
    view_.move(middleOf("MMM"));
    view_.move({300, 300});
    EXPECT_FALSE(view_.item().hasCursor());
}

TEST_F(MentionCursor, RestoresTheCursorOfTheItem)
{
    view_.item().setCursor(Qt::IBeamCursor);
    view_.move(middleOf("MMM"));
    EXPECT_EQ(view_.item().cursor().shape(), Qt::PointingHandCursor);
    view_.move({5, 10});
    EXPECT_EQ(view_.item().cursor().shape(), Qt::IBeamCursor);
}

TEST_F(MentionCursor, IsRemovedWithTheText)
{
    view_.move(middleOf("MMM"));
    view_.item().ClearText();
    EXPECT_FALSE(view_.item().hasCursor());
}

TEST_F(MentionCursor, NeedsHoverEventsOnlyWhileThereIsAMention)
{
    EXPECT_TRUE(view_.item().acceptHoverEvents());
    view_.item().SetReadOnly(false);
    view_.item().SetReadOnly(true);
    EXPECT_TRUE(view_.item().acceptHoverEvents());
    view_.item().ClearText();
    EXPECT_FALSE(view_.item().acceptHoverEvents());
    view_.item().InsertRichText(QStringLiteral("no mention"), true);
    EXPECT_FALSE(view_.item().acceptHoverEvents());
}

} // namespace
