// Mentions under the mouse: where they are hit, clicks and the mouse cursor. The
// events go through a view, as the user's do.
#include "Ink.h"

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

const QColor mentionColor(255, 0, 0);
const QColor textColor(0, 0, 255);

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
        item_->setDefaultTextColor(textColor);
        item_->SetMentionColor(mentionColor);
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

    TextItem& Item() { return *item_; }
    void DeleteItem() { item_.reset(); }
    int PressesBelow() const { return below_.presses; }

    // `at` in the coordinates of the item.
    void Send(QEvent::Type type, const QPointF& at, Qt::MouseButton button = Qt::LeftButton)
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

    void Move(const QPointF& at) { Send(QEvent::MouseMove, at); }
    void Press(const QPointF& at) { Send(QEvent::MouseButtonPress, at); }
    void Release(const QPointF& at) { Send(QEvent::MouseButtonRelease, at); }

    void ClickAt(const QPointF& at)
    {
        Press(at);
        Release(at);
    }

    // The centres of some pixels that have exactly this colour.
    std::vector<QPointF> PixelsOf(const QColor& color)
    {
        const Ink ink(*item_);
        std::vector<QPointF> pixels;
        for (int y = 0; y < ink.Picture().height(); ++y) {
            for (int x = y % 3; x < ink.Picture().width(); x += 3) {
                if (ink.Picture().pixelColor(x, y) == color)
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
        view_.Item().SetElide(true);
        view_.Item().SetFixedItemWidth(GetParam().width);
        view_.Item().SetMaxLineCount(GetParam().maxLines);
        view_.Item().InsertRichText(QString::fromUtf8(GetParam().text), true);
    }

    MentionView view_;
};

TEST_P(MentionHit, IsOnItsGlyphsOnly)
{
    const std::vector<QPointF> mentioned = view_.PixelsOf(mentionColor);
    ASSERT_GT(mentioned.size(), 20U);
    for (const QPointF& at : mentioned) {
        view_.clicks.clear();
        view_.ClickAt(at);
        ASSERT_EQ(view_.clicks, std::vector<Click>({{false, 5}})) << at.x() << ", " << at.y();
    }
    EXPECT_EQ(view_.PressesBelow(), 0);

    const std::vector<QPointF> others = view_.PixelsOf(textColor);
    ASSERT_GT(others.size(), 20U);
    view_.clicks.clear();
    for (const QPointF& at : others) {
        view_.ClickAt(at);
        ASSERT_TRUE(view_.clicks.empty()) << at.x() << ", " << at.y();
    }
    EXPECT_EQ(view_.PressesBelow(), static_cast<int>(others.size()));
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
    [](const auto& row) { return std::string(row.param.name); });

TEST(MentionHitInElidedText, ExcludesTheEllipsis)
{
    for (const char* text :
         {"HH <m user=\"5\">Hans Huber the Third</m>", "שם <m user=\"5\">עדה כהן לוי ברק</m>"}) {
        MentionView view;
        view.Item().SetElide(true);
        view.Item().SetMaxLineCount(1);
        view.Item().SetFixedItemWidth(150);
        view.Item().InsertRichText(QString::fromUtf8(text), true);
        ASSERT_TRUE(view.Item().IsElided());
        const bool endsAtLeft = QString::fromUtf8(text).front().direction() == QChar::DirR;
        const QRectF ink = Ink(view.Item()).Rect();
        const qreal ellipsisWidth =
            QFontMetricsF(view.Item().font()).horizontalAdvance(QChar(0x2026));
        int hits = 0;
        for (const QPointF& at : view.PixelsOf(mentionColor)) {
            const qreal toEnd = endsAtLeft ? at.x() - ink.left() : ink.right() - at.x();
            // Between the ellipsis and the last letter, either may be hit.
            if (toEnd > ellipsisWidth * 0.75 && toEnd < ellipsisWidth * 1.25)
                continue;
            view.clicks.clear();
            view.ClickAt(at);
            EXPECT_EQ(view.clicks.empty(), toEnd < ellipsisWidth) << at.x() << " in " << text;
            hits += !view.clicks.empty();
        }
        EXPECT_GT(hits, 20);
    }
}

TEST(MentionHitInElidedText, ExcludesHiddenLines)
{
    MentionView view;
    view.Item().InsertRichText(QStringLiteral("HHH\n<m user=\"5\">HHH</m>"), true);
    const std::vector<QPointF> mentioned = view.PixelsOf(mentionColor);
    ASSERT_FALSE(mentioned.empty());
    view.Item().SetMaxLineCount(1);
    view.ClickAt(mentioned.front());
    EXPECT_TRUE(view.clicks.empty());
}

// ----- Clicks

class MentionClick : public testing::Test {
protected:
    MentionClick()
    {
        view_.Item().InsertRichText(QStringLiteral("HHH <m user=\"-9223372036854775808\">HHH</m> "
                                                   "<m bot=\"77\">MMM</m><m bot=\"77\">WWW</m>"),
                                    true);
    }

    QPointF MiddleOf(const char* text)
    {
        const QString shown = view_.Item().toPlainText();
        const int start = shown.lastIndexOf(QLatin1String(text));
        const QFontMetricsF metrics(view_.Item().font());
        return {metrics.horizontalAdvance(shown.left(start))
                    + metrics.horizontalAdvance(QLatin1String(text)) / 2,
                view_.Item().boundingRect().center().y()};
    }

    MentionView view_;
};

TEST_F(MentionClick, ReportsTheNumberOfAUser)
{
    view_.ClickAt(MiddleOf("HHH"));
    EXPECT_EQ(view_.clicks, std::vector<Click>({{false, std::numeric_limits<qint64>::min()}}));
}

TEST_F(MentionClick, ReportsTheNumberOfABot)
{
    view_.ClickAt(MiddleOf("MMM"));
    EXPECT_EQ(view_.clicks, std::vector<Click>({{true, 77}}));
}

TEST_F(MentionClick, CreatesNoTextControl)
{
    view_.ClickAt(MiddleOf("MMM"));
    for (const QObject* child : view_.Item().children())
        EXPECT_FALSE(child->inherits("QWidgetTextControl"));
}

TEST_F(MentionClick, NeedsPressAndReleaseOnTheSameMention)
{
    view_.Press(MiddleOf("HHH"));
    view_.Release(MiddleOf("MMM"));
    view_.Press(MiddleOf("MMM"));
    view_.Release(MiddleOf("WWW"));
    view_.Press(MiddleOf("MMM"));
    view_.Release({5, 10});
    EXPECT_TRUE(view_.clicks.empty());
    EXPECT_EQ(view_.PressesBelow(), 0);
    view_.Press({5, 10});
    view_.Release(MiddleOf("MMM"));
    EXPECT_TRUE(view_.clicks.empty());
    EXPECT_EQ(view_.PressesBelow(), 1);
}

TEST_F(MentionClick, MayLeaveTheMentionBetweenPressAndRelease)
{
    view_.Press(MiddleOf("MMM"));
    view_.Move({5, 10});
    view_.Move(MiddleOf("MMM"));
    view_.Release(MiddleOf("MMM"));
    EXPECT_EQ(view_.clicks.size(), 1U);
}

TEST_F(MentionClick, NeedsTheLeftButton)
{
    for (Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton}) {
        view_.Send(QEvent::MouseButtonPress, MiddleOf("MMM"), button);
        view_.Send(QEvent::MouseButtonRelease, MiddleOf("MMM"), button);
    }
    EXPECT_TRUE(view_.clicks.empty());
    EXPECT_EQ(view_.PressesBelow(), 2);
}

TEST_F(MentionClick, HappensTwiceInADoubleClick)
{
    view_.ClickAt(MiddleOf("MMM"));
    view_.Send(QEvent::MouseButtonDblClick, MiddleOf("MMM"));
    view_.Release(MiddleOf("MMM"));
    EXPECT_EQ(view_.clicks.size(), 2U);
    EXPECT_EQ(view_.PressesBelow(), 0);
}

TEST_F(MentionClick, DoesNotHappenWhenTheTextWasReplaced)
{
    const QString again = QStringLiteral("<m user=\"1\">MMMMMMMMMMMMMMMMMM</m>");
    view_.Press(MiddleOf("MMM"));
    view_.Item().ClearText();
    view_.Item().InsertRichText(again, true);
    view_.Release({20, 10});
    EXPECT_TRUE(view_.clicks.empty());
    view_.ClickAt({20, 10});
    EXPECT_EQ(view_.clicks.size(), 1U);
}

TEST_F(MentionClick, MayDeleteTheItem)
{
    QObject::connect(&view_.Item(), &TextItem::BotMentionClicked, [this] { view_.DeleteItem(); });
    view_.ClickAt(MiddleOf("MMM"));
    EXPECT_EQ(view_.clicks.size(), 1U);
}

TEST_F(MentionClick, DoesNotHappenInAnEditableItem)
{
    view_.Item().SetReadOnly(false);
    view_.ClickAt(MiddleOf("MMM"));
    EXPECT_TRUE(view_.clicks.empty());
    view_.Item().SetReadOnly(true);
    view_.ClickAt(MiddleOf("MMM"));
    EXPECT_EQ(view_.clicks.size(), 1U);
}

TEST(MentionMarkup, IsNotClickableWhileMarkupIsDisabled)
{
    MentionView view;
    view.Item().SetMarkupEnabled(false);
    view.Item().InsertRichText(QStringLiteral("<m user=\"5\">HHHH</m>"), true);
    EXPECT_TRUE(view.PixelsOf(mentionColor).empty());
    for (const QPointF& at : view.PixelsOf(textColor))
        view.ClickAt(at);
    EXPECT_TRUE(view.clicks.empty());
}

TEST(TextNextToAMention, IsNotClickable)
{
    MentionView view;
    view.Item().InsertRichText(QStringLiteral("<m user=\"5\">MM</m>"), true);
    view.Item().InsertRichText(QStringLiteral("HH"), true);
    view.Item().InsertRichText(QStringLiteral("HH"), false);
    for (const QPointF& at : view.PixelsOf(textColor))
        view.ClickAt(at);
    EXPECT_TRUE(view.clicks.empty());
}

// ----- The mouse cursor

using MentionCursor = MentionClick;

TEST_F(MentionCursor, IsAPointingHand)
{
    view_.Move({5, 10});
    EXPECT_FALSE(view_.Item().hasCursor());
    view_.Move(MiddleOf("MMM"));
    EXPECT_EQ(view_.Item().cursor().shape(), Qt::PointingHandCursor);
    view_.Move({5, 10});
    EXPECT_FALSE(view_.Item().hasCursor());
    view_.Move(MiddleOf("MMM"));
    view_.Move({300, 300});
    EXPECT_FALSE(view_.Item().hasCursor());
}

TEST_F(MentionCursor, RestoresTheCursorOfTheItem)
{
    view_.Item().setCursor(Qt::IBeamCursor);
    view_.Move(MiddleOf("MMM"));
    EXPECT_EQ(view_.Item().cursor().shape(), Qt::PointingHandCursor);
    view_.Move({5, 10});
    EXPECT_EQ(view_.Item().cursor().shape(), Qt::IBeamCursor);
}

TEST_F(MentionCursor, IsRemovedWithTheText)
{
    view_.Move(MiddleOf("MMM"));
    view_.Item().ClearText();
    EXPECT_FALSE(view_.Item().hasCursor());
}

TEST_F(MentionCursor, NeedsHoverEventsOnlyWhileThereIsAMention)
{
    EXPECT_TRUE(view_.Item().acceptHoverEvents());
    view_.Item().SetReadOnly(false);
    view_.Item().SetReadOnly(true);
    EXPECT_TRUE(view_.Item().acceptHoverEvents());
    view_.Item().ClearText();
    EXPECT_FALSE(view_.Item().acceptHoverEvents());
    view_.Item().InsertRichText(QStringLiteral("no mention"), true);
    EXPECT_FALSE(view_.Item().acceptHoverEvents());
}

} // namespace
