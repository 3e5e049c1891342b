// What a TextItem paints.
#include "Ink.h"
#include "support/ClipCounter.h"
#include "support/RowName.h"

#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QPainter>
#include <QTextDocument>
#include <QTextFrame>

#include <ostream>
#include <string>

namespace {

using plix::test::ClipCounter;

void useFont(TextItem& item, int pixelSize = 20)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixelSize);
    item.setFont(font);
}

struct RenderedScriptRow {
    const char* name;
    const char* text;

    friend std::ostream& operator<<(std::ostream& out, const RenderedScriptRow& row)
    {
        return out << row.name;
    }
};

class TextItemInk : public testing::TestWithParam<RenderedScriptRow> { };

TEST_P(TextItemInk, IsInsideTheBoundingRect)
{
    for (qreal scale : {1.0, 2.0}) {
        for (qreal width : {-1.0, 300.0, 95.0}) {
            TextItem item;
            useFont(item);
            item.InsertRichText(QString::fromUtf8(GetParam().text), true);
            item.SetFixedItemWidth(width);
            const QRectF ink = Ink(item, scale).rect();
            ASSERT_FALSE(ink.isEmpty());
            // Antialiased edges of glyphs may extend beyond it by a pixel or two.
            const QRectF rect = item.boundingRect().adjusted(-2, -2, 2, 2);
            EXPECT_TRUE(rect.contains(ink)) << "width " << width << ", scale " << scale;
            EXPECT_GT(ink.height(), item.boundingRect().height() / 2);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Scripts, TextItemInk,
    testing::Values(RenderedScriptRow {"Latin", "Dinner is ready, come over"},
                    RenderedScriptRow {"Chinese", "晚上一起吃饭吗我们等你"},
                    RenderedScriptRow {"Arabic", "العشاء جاهز تعالوا إلينا"},
                    RenderedScriptRow {"Hebrew", "ארוחת הערב מוכנה בואו"},
                    RenderedScriptRow {
                        "Emoji",
                        "👨‍👩‍👧👍🏽🇩🇪😀👨‍👩‍👧👍🏽"},
                    RenderedScriptRow {"Mixed", "Dinner ארוחת הערב at 7"}),
    plix::test::RowName());

TEST(TextItemRendering, DrawsOnlyTheLinesWithinTheLimit)
{
    TextItem item;
    useFont(item);
    item.InsertRichText(QStringLiteral("H\nH\nH"), true);
    const QRectF all = Ink(item).rect();
    item.SetMaxLineCount(2);
    const QRectF limited = Ink(item).rect();
    EXPECT_EQ(limited.topLeft(), all.topLeft());
    EXPECT_LT(limited.bottom(), item.boundingRect().bottom());
    EXPECT_GT(limited.bottom(), item.boundingRect().bottom() - 10);
}

TEST(TextItemRendering, UsesTheDefaultColourUnlessASpanHasOne)
{
    TextItem item;
    useFont(item, 60);
    QTextCharFormat red;
    red.setForeground(QColor(200, 0, 0));
    item.setDefaultTextColor(QColor(0, 0, 200));
    item.InsertRichText(QStringLiteral("H"), true);
    item.InsertRichText(QStringLiteral("H"), true, &red);
    EXPECT_TRUE(Ink(item).has(QColor(0, 0, 200)));
    EXPECT_TRUE(Ink(item).has(QColor(200, 0, 0)));

    item.setDefaultTextColor(QColor(0, 150, 0));
    EXPECT_FALSE(Ink(item).has(QColor(0, 0, 200)));
    EXPECT_TRUE(Ink(item).has(QColor(0, 150, 0)));
    EXPECT_TRUE(Ink(item).has(QColor(200, 0, 0)));
}

TEST(TextItemRendering, DrawsInBlackIfTheColourIsInvalid)
{
    TextItem item;
    useFont(item, 60);
    item.setDefaultTextColor(QColor());
    item.InsertRichText(QStringLiteral("H"), true);
    EXPECT_TRUE(Ink(item).has(Qt::black));
}

TEST(TextItemRendering, DrawsTheLinesAndBackgroundsOfSpans)
{
    // Spaces themselves paint nothing; only their format does.
    const QString spaces = QString(5, QChar::Nbsp);
    TextItem plain;
    useFont(plain, 30);
    plain.InsertRichText(spaces, true);
    ASSERT_TRUE(Ink(plain).rect().isEmpty());

    QTextCharFormat underline;
    underline.setFontUnderline(true);
    QTextCharFormat strikeOut;
    strikeOut.setFontStrikeOut(true);
    QTextCharFormat background;
    background.setBackground(Qt::yellow);
    for (const QTextCharFormat* format : {&underline, &strikeOut, &background}) {
        TextItem item;
        useFont(item, 30);
        item.InsertRichText(spaces, true, format);
        EXPECT_GT(Ink(item).rect().width(), item.boundingRect().width() - 3);
    }
}

TEST(TextItemRendering, RestoresThePen)
{
    TextItem item;
    useFont(item);
    item.setDefaultTextColor(Qt::red);
    item.InsertRichText(QStringLiteral("H"), true);
    QImage image(10, 10, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::green, 3));
    item.paint(&painter, nullptr, nullptr);
    EXPECT_EQ(painter.pen(), QPen(Qt::green, 3));
}

struct AlignmentRow {
    const char* name;
    const char* text;
    Qt::Alignment alignment;
    Qt::LayoutDirection direction;
    // The position of the text in the free width: 0 left, 0.5 centre, 1 right.
    qreal position;

    friend std::ostream& operator<<(std::ostream& out, const AlignmentRow& row)
    {
        return out << row.name;
    }
};

class TextItemAlignment : public testing::TestWithParam<AlignmentRow> {
protected:
    void SetUp() override
    {
        useFont(item_);
        QTextOption option = item_.document()->defaultTextOption();
        option.setAlignment(GetParam().alignment);
        option.setTextDirection(GetParam().direction);
        item_.document()->setDefaultTextOption(option);
        item_.InsertRichText(QString::fromUtf8(GetParam().text), true);
    }

    TextItem item_;
};

TEST_P(TextItemAlignment, AppliesToTheFixedWidth)
{
    item_.SetFixedItemWidth(300);
    const QRectF ink = Ink(item_).rect();
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_NEAR(ink.left(), (300 - ink.width()) * GetParam().position, 3);
}

// The short line is aligned in the width of the widest shown line; a wider line is
// hidden by the line limit.
TEST_P(TextItemAlignment, AppliesToShortLinesInTheNaturalWidth)
{
    const QString wide = QString::fromUtf8(GetParam().text).repeated(4);
    item_.InsertRichText(QLatin1Char('\n') + wide + QLatin1Char('\n') + wide.repeated(3), true);
    item_.SetMaxLineCount(2);
    const QRectF rect = item_.boundingRect();
    const QRectF firstLine(rect.left(), rect.top(), rect.width(), rect.height() / 2);
    const QRectF ink = Ink(item_).rectIn(firstLine);
    ASSERT_FALSE(ink.isEmpty());
    EXPECT_LT(ink.width(), rect.width() / 2);
    EXPECT_NEAR(ink.left(), (rect.width() - ink.width()) * GetParam().position, 3);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TextItemAlignment,
    testing::Values(
        AlignmentRow {"LatinLeft", "HHH", Qt::AlignLeft, Qt::LayoutDirectionAuto, 0},
        AlignmentRow {"LatinCentre", "HHH", Qt::AlignHCenter, Qt::LayoutDirectionAuto, 0.5},
        AlignmentRow {"LatinRight", "HHH", Qt::AlignRight, Qt::LayoutDirectionAuto, 1},
        AlignmentRow {"LatinInRightToLeftText", "HHH", Qt::AlignLeft, Qt::RightToLeft, 1},
        AlignmentRow {"HebrewStartsAtTheRight", "םםם", Qt::AlignLeft, Qt::LayoutDirectionAuto, 1},
        AlignmentRow {"HebrewCentre", "םםם", Qt::AlignHCenter, Qt::LayoutDirectionAuto, 0.5},
        AlignmentRow {"HebrewEndsAtTheLeft", "םםם", Qt::AlignRight, Qt::LayoutDirectionAuto, 0},
        AlignmentRow {"HebrewInLeftToRightText", "םםם", Qt::AlignLeft, Qt::LeftToRight, 0}),
    plix::test::RowName());

TEST(TextItemRendering, DrawsTheTextBelowTheFrameMargin)
{
    TextItem item;
    useFont(item);
    item.InsertRichText(QStringLiteral("H"), true);
    const QRectF before = Ink(item).rect();
    QTextFrameFormat format = item.document()->rootFrame()->frameFormat();
    format.setTopMargin(100);
    item.document()->rootFrame()->setFrameFormat(format);
    EXPECT_EQ(Ink(item).rect(), before.translated(0, 100));
}

// Sets the clips that the item needs at this place and scale.
void countClips(TextItem& item, double x, double scale, ClipCounter& counter)
{
    QPainter painter(&counter);
    painter.translate(x, 0);
    painter.scale(scale, scale);
    item.paint(&painter, nullptr, nullptr);
}

struct SideRow {
    const char* name;
    const char* text;
    bool isItalic;
    double x;
    double scale;
    int rectangles;
    int paths;

    friend std::ostream& operator<<(std::ostream& out, const SideRow& row)
    {
        return out << row.name;
    }
};

class TextItemSides : public testing::TestWithParam<SideRow> { };

TEST_P(TextItemSides, AreClippedOnlyIfALetterSticksOut)
{
    TextItem item;
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(20);
    font.setItalic(GetParam().isItalic);
    item.setFont(font);
    item.InsertRichText(QString::fromUtf8(GetParam().text), true);
    ClipCounter counter;
    countClips(item, GetParam().x, GetParam().scale, counter);
    EXPECT_EQ(counter.rectangles(), GetParam().rectangles);
    EXPECT_EQ(counter.paths(), GetParam().paths);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, TextItemSides,
    testing::Values(SideRow {"Inside", "Dinner", false, 0, 1, 0, 0},
                    SideRow {"FirstLetter", "jar", false, 0, 1, 1, 0},
                    SideRow {"FirstLetterOfALongText", "jar of a jam that is red", false, 0, 1, 1,
                             0},
                    SideRow {"LastLetter", "\u05e9\u05dc j", false, 0, 1, 1, 0},
                    SideRow {"TwiceAsLarge", "jar", false, 0, 2, 1, 0},
                    SideRow {"BetweenPixels", "jar", false, 0.5, 1, 0, 1},
                    SideRow {"EmojiInside", "Dinner 😀 is ready", false, 0, 1, 0, 0}),
    plix::test::RowName());

TEST(TextItemRendering, HasAnInkRectangleOfWhatItDraws)
{
    for (const char* text : {"jar", "Dinner", "Á\u0323\u0323\u0323", "שלום"}) {
        TextItem item;
        useFont(item);
        item.InsertRichText(QString::fromUtf8(text), true);
        EXPECT_TRUE(item.InkRect().contains(Ink(item, 1).rect())) << text;
    }
}

TEST(TextItemRendering, DrawsCapitalsOnTheBaseline)
{
    TextItem item;
    useFont(item, 60);
    item.InsertRichText(QStringLiteral("H"), true);
    EXPECT_NEAR(Ink(item).rect().bottom(), item.boundingRect().top() + item.FirstLineAscent(), 1.5);
}

} // namespace
