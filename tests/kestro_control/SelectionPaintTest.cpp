// How a selection is painted. It is compared with a highlight of the same words.
#include "Ink.h"
#include "RandomTexts.h"
#include "SelectionView.h"

#include "support/LiveView.h"
#include "support/RowName.h"

#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QPalette>

namespace {

const QColor kBackground(255, 255, 0);
const QColor kInactiveBackground(0, 255, 255);

// A desktop whose selections look like a highlight: black text on a light background.
class SelectionColors : public testing::Test {
protected:
    SelectionColors()
    {
        QPalette palette = before_;
        for (const auto group : {QPalette::Active, QPalette::Inactive}) {
            const bool isActive = group == QPalette::Active;
            palette.setColor(group, QPalette::Highlight,
                             isActive ? kBackground : kInactiveBackground);
            palette.setColor(group, QPalette::HighlightedText, Qt::black);
        }
        QApplication::setPalette(palette);
    }

    ~SelectionColors() override { QApplication::setPalette(before_); }

private:
    const QPalette before_ = QApplication::palette();
};

struct PaintRow {
    const char* name;
    const char* text;
    const char* word;
    qreal width;

    friend std::ostream& operator<<(std::ostream& out, const PaintRow& row)
    {
        return out << row.name;
    }
};

class SelectionPaint : public SelectionColors, public testing::WithParamInterface<PaintRow> {
protected:
    SelectionPaint()
        : view_(QString::fromUtf8(GetParam().text))
    {
        view_.item->SetFixedItemWidth(GetParam().width);
    }

    // Searches for the word with a double click.
    void selectWord()
    {
        const QRectF rect = view_.item->sceneBoundingRect();
        for (double y = rect.top() + 5; y < rect.bottom(); y += 10) {
            for (double x = rect.left() + 2; x < rect.right(); x += 3) {
                view_.doubleClick({x, y});
                if (view_.selected() == GetParam().word)
                    return;
            }
        }
        FAIL() << "the word is not found";
    }

    SelectionView view_;
};

TEST_P(SelectionPaint, IsLikeThatOfAHighlight)
{
    selectWord();
    TextItem expected;
    expected.setFont(view_.item->font());
    expected.InsertRichText(view_.item->toPlainText(), true);
    expected.SetFixedItemWidth(GetParam().width);
    expected.HighlightText({QString::fromUtf8(GetParam().word)}, kBackground);
    for (const qreal scale : {1.0, 1.5, 2.0})
        EXPECT_EQ(Ink(*view_.item, scale).picture(), Ink(expected, scale).picture());
}

TEST_P(SelectionPaint, LeavesNothingBehind)
{
    const QImage before = Ink(*view_.item).picture();
    selectWord();
    EXPECT_NE(Ink(*view_.item).picture(), before);
    view_.item->ClearSelection();
    EXPECT_EQ(Ink(*view_.item).picture(), before);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SelectionPaint,
    testing::Values(PaintRow {"OneWord", "some words on a line", "words", -1},
                    PaintRow {"WithKerning", "say AVATo now", "AVATo", -1},
                    PaintRow {"WithLigatures", "an office ffi", "office", -1},
                    PaintRow {"BrokenWord", "someverylongwordthatisbroken",
                              "someverylongwordthatisbroken", 90},
                    PaintRow {"Hebrew", "שלום לכולם כאן", "לכולם", -1},
                    PaintRow {"HebrewInLatin", "see שלום לכולם now", "שלום", -1},
                    PaintRow {"LatinInHebrew", "שלום words כאן", "words", -1},
                    PaintRow {"NumbersInHebrew", "בשעה 1234 כאן", "1234", -1},
                    PaintRow {"Combining", "an e\u0301te\u0301 here", "e\u0301te\u0301", -1}),
    plix::test::RowName());

using SelectionColor = SelectionColors;

TEST_F(SelectionColor, IsInactiveWithoutTheFocus)
{
    SelectionView view(QStringLiteral("some words"));
    view.drag(view.place(0), view.place(4));
    EXPECT_TRUE(Ink(*view.item).has(kBackground));
    view.scene().setFocusItem(nullptr);
    EXPECT_FALSE(Ink(*view.item).has(kBackground));
    EXPECT_TRUE(Ink(*view.item).has(kInactiveBackground));
    view.view().clearFocus();
    view.doubleClick(view.on(1));
    EXPECT_TRUE(Ink(*view.item).has(kBackground));
}

TEST_F(SelectionColor, IsThatOfTheView)
{
    SelectionView view(QStringLiteral("some words"));
    QPalette palette;
    palette.setColor(QPalette::Highlight, Qt::magenta);
    view.view().setPalette(palette);
    view.drag(view.place(0), view.place(4));
    const QPoint pixel = view.view().mapFromScene(view.item->sceneBoundingRect().topLeft());
    EXPECT_EQ(view.view().grab().toImage().pixelColor(pixel + QPoint(2, 2)), QColor(Qt::magenta));
}

TEST_F(SelectionColor, IsOnTopOfHighlightsAndSpans)
{
    QTextCharFormat format;
    format.setBackground(Qt::green);
    SelectionView view;
    view.item->InsertRichText(QStringLiteral("some words"), true, &format);
    view.item->HighlightText({QStringLiteral("some"), QStringLiteral("words")}, Qt::red);
    view.drag(view.place(0), view.place(4));
    const Ink ink(*view.item);
    EXPECT_TRUE(ink.has(kBackground));
    EXPECT_TRUE(ink.has(Qt::red)) << "the other word";
    EXPECT_TRUE(ink.has(Qt::green)) << "the space between them";
    view.pressKey(Qt::Key_A, Qt::ControlModifier);
    const Ink all(*view.item);
    EXPECT_FALSE(all.has(Qt::red));
    EXPECT_FALSE(all.has(Qt::green));
}

TEST_F(SelectionColor, CoversAnEllipsisThatIsSelected)
{
    for (const char* text : {"some words and more", "שלום לכולם כאן ועוד"}) {
        SelectionView view(QString::fromUtf8(text));
        view.item->SetElide(true);
        view.item->SetMaxLineCount(1);
        view.item->SetFixedItemWidth(120);
        ASSERT_TRUE(view.item->IsElided());
        view.selectAll();
        const QImage all = Ink(*view.item).picture();
        int width = 0;
        for (int x = 0; x < all.width(); ++x)
            width += all.pixelColor(x, 51) == kBackground;
        EXPECT_GT(width, 100) << text;
        view.extend(Qt::Key_Home);
        view.item->SelectAll();
        const bool isRightToLeft = text[0] != 's';
        view.extend(isRightToLeft ? Qt::Key_Right : Qt::Key_Left);
        const QImage part = Ink(*view.item).picture();
        int partWidth = 0;
        for (int x = 0; x < part.width(); ++x)
            partWidth += part.pixelColor(x, 51) == kBackground;
        EXPECT_LT(partWidth, width - 10) << text;
        EXPECT_GT(partWidth, width - 30) << text;
    }
}

TEST_F(SelectionColor, StaysInTheRectangle)
{
    SelectionView view(QStringLiteral("mmmm mmmm mmmm"));
    view.item->SetFixedItemWidth(
        std::ceil(QFontMetricsF(view.item->font()).horizontalAdvance(QStringLiteral("mmmm"))));
    ASSERT_EQ(view.item->ShownLineCount(), 3);
    view.selectAll();
    const Ink ink(*view.item);
    EXPECT_TRUE(ink.has(kBackground));
    EXPECT_EQ(ink.rect() | view.item->boundingRect(), view.item->boundingRect());
    view.item->ClearSelection();
    view.item->HighlightText({QStringLiteral("mmmm mmmm")}, kBackground);
    EXPECT_EQ(Ink(*view.item).rect(), ink.rect()) << "nor does a highlight leave it";
}

// An application with a picture for emoji that is transparent outside of a dot.
class DotSupport : public KestroControlSupport {
public:
    DotSupport() { KestroControlManager::GetInstance()->SetKestroControlSupport(this); }
    ~DotSupport() override
    {
        KestroControlManager::GetInstance()->SetKestroControlSupport(nullptr);
    }

    QString GetFontFamily() const override { return {}; }
    QImage GetEmojiImage(const QString&) const override
    {
        QImage picture(20, 20, QImage::Format_ARGB32);
        picture.fill(Qt::transparent);
        for (int i = 0; i < 9; ++i)
            picture.setPixelColor(9 + i % 3, 3 + i / 3, Qt::red);
        return picture;
    }
};

TEST_F(SelectionColor, IsBehindPictures)
{
    const DotSupport support;
    for (const bool isElided : {false, true}) {
        SelectionView view;
        view.item->SetMarkupEnabled(true);
        view.item->InsertRichText(QStringLiteral("<e code=\"1F600\"/>mmmmmm"), true);
        view.item->SetElide(true);
        if (isElided)
            view.item->SetFixedItemWidth(70);
        view.item->SetMaxLineCount(1);
        ASSERT_EQ(view.item->IsElided(), isElided);
        view.selectAll();
        const QImage picture = Ink(*view.item).picture();
        int backgrounds = 0;
        int others = 0;
        for (int y = 52; y < 70; ++y) {
            for (int x = 51; x < 68; ++x) {
                const QColor color = picture.pixelColor(x, y);
                backgrounds += color == kBackground;
                others += color.green() < 200 && color.red() < 200;
            }
        }
        EXPECT_GT(backgrounds, 200) << isElided;
        EXPECT_EQ(others, 0) << "nothing but the picture is on it " << isElided;
    }
}

// ----- In parts

TEST_F(SelectionColor, IsTheSameInPartsAndAsAWhole)
{
    RandomTexts random(5);
    for (int text = 0; text < 25; ++text) {
        TextItem item;
        item.setTextInteractionFlags(Qt::TextSelectableByMouse);
        item.setFont(random.font());
        item.InsertRichText(random.text(), true);
        item.SetFixedItemWidth(40 + random.number(300));
        item.SetElide(random.oneIn(2));
        item.SetMaxLineCount(random.number(4));
        item.SetTextAlignment(random.alignment());
        plix::test::LiveView view(item, random.oneIn(2) ? 1.5 : 1);
        const QImage before = view.shown();
        item.SelectAll();
        view.paintWhatChanged();
        const QImage selected = view.shown();
        EXPECT_EQ(selected == before, !item.HasSelection());
        view.paintAllAgain();
        EXPECT_EQ(view.shown(), selected);
        for (int i = 0; i < 12; ++i) {
            const QRect all = view.pixels();
            view.paintAgain(QRect(random.number(all.width()), random.number(all.height()),
                                  random.number(60) + 1, random.number(30) + 1));
        }
        EXPECT_EQ(view.shown(), selected) << item.toPlainText().toStdString();
        item.ClearSelection();
        view.paintWhatChanged();
        EXPECT_EQ(view.shown(), before);
    }
}

} // namespace
