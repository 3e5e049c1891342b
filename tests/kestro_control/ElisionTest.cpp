// Where an elided line ends. The expected text is found by trying every possible
// cut. A second item, which has it as its whole text, draws the expected picture.
#include "Ink.h"

#include "support/RowName.h"

#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QFontMetricsF>
#include <QStringList>
#include <QTextDocument>
#include <QTextFrame>

#include <memory>
#include <ostream>
#include <string>

namespace {

const QString kEllipsis(QChar(0x2026));
// Breaks a line as wrapping does, within its paragraph.
const QString kLineSeparator = QChar(QChar::LineSeparator);

struct ElisionItem : TextItem {
    explicit ElisionItem(const QString& text = QString(), int pixelSize = 20)
    {
        QFont testFont(QStringLiteral("DejaVu Sans"));
        testFont.setPixelSize(pixelSize);
        setFont(testFont);
        InsertRichText(text, true);
    }

    void setTextOption(Qt::LayoutDirection direction, Qt::Alignment alignment)
    {
        QTextOption option = document()->defaultTextOption();
        option.setTextDirection(direction);
        option.setAlignment(alignment);
        document()->setDefaultTextOption(option);
    }
};

struct ElidedItem : ElisionItem {
    explicit ElidedItem(const QString& text = QString(), qreal width = -1, int lines = 1)
        : ElisionItem(text)
    {
        SetElide(true);
        SetFixedItemWidth(width);
        SetMaxLineCount(lines);
    }
};

// The picture of `text` with one line for each paragraph.
QImage pictureOf(const QString& text, qreal width)
{
    ElisionItem item(text);
    item.SetWrapMode(QTextOption::NoWrap);
    item.SetFixedItemWidth(width);
    return Ink(item).picture();
}

qreal naturalWidth(const QString& text)
{
    return ElisionItem(text).boundingRect().width();
}

QString trimmedEnd(QString text)
{
    while (text.endsWith(QLatin1Char(' ')))
        text.chop(1);
    return text;
}

QString longestElided(const QStringList& characters, qreal width)
{
    QString best = kEllipsis;
    QString start;
    for (const QString& character : characters) {
        start += character;
        const QString elided = trimmedEnd(start) + kEllipsis;
        if (naturalWidth(elided) <= width)
            best = elided;
    }
    return best;
}

struct ScriptRow {
    const char* name;
    // Graphemes, separated by "|".
    const char* characters;
    Qt::LayoutDirection direction;
    Qt::Alignment alignment;
    bool isEllipsisAtLeft;

    friend std::ostream& operator<<(std::ostream& out, const ScriptRow& row)
    {
        return out << row.name;
    }
};

class ElisionOfScript : public testing::TestWithParam<ScriptRow> {
protected:
    void SetUp() override
    {
        const QString once = QString::fromUtf8(GetParam().characters);
        characters_ = once.split(QLatin1Char('|'));
        characters_ = characters_ + characters_ + characters_;
    }

    QString text() const { return characters_.join(QString()); }

    void prepare(ElisionItem& item) const
    {
        item.setTextOption(GetParam().direction, GetParam().alignment);
    }

    QStringList characters_;
};

TEST_P(ElisionOfScript, ShowsAsManyWholeCharactersAsFit)
{
    for (auto mode : {QTextOption::NoWrap, QTextOption::WordWrap, QTextOption::WrapAnywhere,
                      QTextOption::WrapAtWordBoundaryOrAnywhere}) {
        for (qreal width : {20.0, 47.0, 80.5, 128.0, 211.0}) {
            SCOPED_TRACE(testing::Message() << "width " << width << ", wrap mode " << mode);
            ASSERT_GT(naturalWidth(text()), width);
            ElidedItem item(text(), width);
            prepare(item);
            item.SetWrapMode(mode);

            ElisionItem expected(longestElided(characters_, width));
            prepare(expected);
            expected.SetWrapMode(QTextOption::NoWrap);
            expected.SetFixedItemWidth(width);

            EXPECT_TRUE(item.IsElided());
            EXPECT_EQ(item.ShownLineCount(), 1);
            EXPECT_EQ(item.toPlainText(), text());
            EXPECT_EQ(item.boundingRect(), expected.boundingRect());
            EXPECT_EQ(Ink(item).picture(), Ink(expected).picture());
        }
    }
}

TEST_P(ElisionOfScript, HasTheEllipsisAtTheEndOfTheLine)
{
    ElidedItem item(text(), 130);
    prepare(item);
    const Ink ink(item, 2);
    QRectF end = ink.rect();
    const qreal dots = QFontMetricsF(item.font()).horizontalAdvance(kEllipsis) * 0.6;
    if (GetParam().isEllipsisAtLeft)
        end.setRight(end.left() + dots);
    else
        end.setLeft(end.right() - dots);
    ASSERT_FALSE(ink.rectIn(end).isEmpty());
    EXPECT_LT(ink.rectIn(end).height(), 4);
}

TEST_P(ElisionOfScript, DrawsInsideTheBoundingRect)
{
    for (qreal width = 12; width < 200; width += 7) {
        ElidedItem item(text(), width, 2);
        prepare(item);
        // Widths need not be whole pixels.
        EXPECT_TRUE(item.boundingRect().adjusted(0, -2, 1, 2).contains(Ink(item).rect())) << width;
    }
}

// Programs put direction marks around names, for example. The text is cut inside
// of such a pair.
TEST(ElisionInsideDirectionMarks, HasTheEllipsisAtTheEndOfTheLine)
{
    const QString latin = QStringLiteral("HHHHHHHHHHHHHHHHHHHHHHHH");
    const QString hebrew = QString::fromUtf8("םםםםםםםםםםםםםםםםםםםםםםםם");
    const QString leftToRightMarks = QStringLiteral("\u202A\u202D\u2066\u2068");
    const QString rightToLeftMarks = QStringLiteral("\u202B\u202E\u2067\u2068");
    const qreal dots = naturalWidth(kEllipsis) * 0.6;
    for (QChar mark : leftToRightMarks) {
        ElidedItem item(hebrew.left(3) + mark + latin, 200);
        const Ink ink(item, 2);
        QRectF end = ink.rect();
        end.setRight(end.left() + dots);
        EXPECT_LT(ink.rectIn(end).height(), 4) << mark.unicode();
    }
    for (QChar mark : rightToLeftMarks) {
        ElidedItem item(latin.left(3) + mark + hebrew, 200);
        const Ink ink(item, 2);
        QRectF end = ink.rect();
        end.setLeft(end.right() - dots);
        EXPECT_LT(ink.rectIn(end).height(), 4) << mark.unicode();
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ElisionOfScript,
    testing::Values(
        ScriptRow {"Latin", "W|a|f|f|l|e|s| |f|o|r| |T|a|f|f|y| ", Qt::LayoutDirectionAuto,
                   Qt::AlignLeft, false},
        ScriptRow {"LatinCentred", "W|a|f|f|l|e|s| |f|o|r| |T|a|f|f|y| ", Qt::LayoutDirectionAuto,
                   Qt::AlignHCenter, false},
        ScriptRow {"LatinAtTheRight", "W|a|f|f|l|e|s| |f|o|r| ", Qt::LayoutDirectionAuto,
                   Qt::AlignRight, false},
        ScriptRow {"LatinInRightToLeftText", "W|a|f|f|l|e|s| |f|o|r| ", Qt::RightToLeft,
                   Qt::AlignLeft, true},
        ScriptRow {"Accents", "é|e\u0301|n\u0303|o\u0302\u0301| |u\u0308|a\u030a\u0323|z| ",
                   Qt::LayoutDirectionAuto, Qt::AlignLeft, false},
        ScriptRow {"Chinese", "晚|上|一|起|吃|饭|吗|，|我|们|等|你", Qt::LayoutDirectionAuto,
                   Qt::AlignLeft, false},
        ScriptRow {"Japanese", "か\u3099|き|ゃ|ー|カ|゛|漢|字|。", Qt::LayoutDirectionAuto,
                   Qt::AlignLeft, false},
        ScriptRow {"Korean", "한|국|어|\u1112\u1161\u11ab| |글|자| ", Qt::LayoutDirectionAuto,
                   Qt::AlignLeft, false},
        ScriptRow {"Arabic", "م|ر|ح|ب|ا| |ب|ك|مُ|\u0644\u064e|ج|م|ي|ع|ا| ", Qt::LayoutDirectionAuto,
                   Qt::AlignLeft, true},
        ScriptRow {"Hebrew", "ש|ל|ו|ם| |ל|כ|ו|ל|ם| ", Qt::LayoutDirectionAuto, Qt::AlignLeft, true},
        ScriptRow {"HebrewCentred", "ש|ל|ו|ם| |ל|כ|ו|ל|ם| ", Qt::LayoutDirectionAuto,
                   Qt::AlignHCenter, true},
        ScriptRow {"HebrewInLeftToRightText", "ש|ל|ו|ם| |ל|כ|ו|ל|ם| ", Qt::LeftToRight,
                   Qt::AlignLeft, false},
        ScriptRow {"LatinWithHebrew", "H|i| |ש|ל|ו|ם| |t|h|e|r|e| ", Qt::LayoutDirectionAuto,
                   Qt::AlignLeft, false},
        ScriptRow {"HebrewWithLatin", "ש|ל|ו|ם| |H|i| |t|h|e|r|e| |ל|כ| ", Qt::LayoutDirectionAuto,
                   Qt::AlignLeft, true},
        ScriptRow {
            "Emoji",
            "👨‍👩‍👧|👍🏽|🇩🇪|🇫🇷|😀|👩🏽‍🚒|1️⃣|❤️",
            Qt::LayoutDirectionAuto, Qt::AlignLeft, false}),
    plix::test::RowName());

TEST(ElisionOfWrappedText, ContinuesTheLastLinePastItsBreak)
{
    const qreal width = naturalWidth(QStringLiteral("alpha be")) + 1;
    ElidedItem item(QStringLiteral("alpha beta gammadelta"), width, 2);
    EXPECT_EQ(item.ShownLineCount(), 2);
    const QStringList lastLine =
        QStringLiteral("b|e|t|a| |g|a|m|m|a|d|e|l|t|a").split(QLatin1Char('|'));
    const QString expected =
        QStringLiteral("alpha") + kLineSeparator + longestElided(lastLine, width);
    EXPECT_TRUE(expected.contains(QLatin1Char('g'))) << "the test needs a cut past the break";
    EXPECT_EQ(Ink(item).picture(), pictureOf(expected, width));
}

TEST(ElisionOfWrappedText, DoesNotHappenWhenAllLinesAreShown)
{
    ElidedItem item(QStringLiteral("alpha beta"), naturalWidth(QStringLiteral("alpha ")), 2);
    EXPECT_EQ(item.ShownLineCount(), 2);
    EXPECT_FALSE(item.IsElided());
}

TEST(ElisionAtParagraphEnds, AppendsTheEllipsisIfItFits)
{
    ElidedItem item(QStringLiteral("one\ntwo"), 200);
    EXPECT_TRUE(item.IsElided());
    EXPECT_EQ(Ink(item).picture(), pictureOf(QStringLiteral("one") + kEllipsis, 200));
}

TEST(ElisionAtParagraphEnds, ShortensTheLineIfTheEllipsisDoesNotFit)
{
    const qreal width = naturalWidth(QStringLiteral("alpha")) + 1;
    ElidedItem item(QStringLiteral("alpha\ntwo"), width);
    const QString expected =
        longestElided(QStringLiteral("a|l|p|h|a").split(QLatin1Char('|')), width);
    EXPECT_EQ(Ink(item).picture(), pictureOf(expected, width));
}

TEST(ElisionAtParagraphEnds, StopsAtALineSeparator)
{
    ElidedItem item(QStringLiteral("one") + kLineSeparator + QStringLiteral("two"), 200);
    EXPECT_EQ(Ink(item).picture(), pictureOf(QStringLiteral("one") + kEllipsis, 200));
}

TEST(ElisionAtParagraphEnds, ShowsOnlyTheEllipsisInAnEmptyLine)
{
    ElidedItem item(QStringLiteral("one\n\ntwo"), 200, 2);
    EXPECT_EQ(Ink(item).picture(), pictureOf(QStringLiteral("one\n") + kEllipsis, 200));
}

TEST(ElisionAtParagraphEnds, DoesNotHappenWhenNothingVisibleFollows)
{
    EXPECT_FALSE(ElidedItem(QStringLiteral("one\n\n  \n"), 200).IsElided());
    EXPECT_TRUE(ElidedItem(QStringLiteral("one\n\n  \n."), 200).IsElided());
}

TEST(ElisionInTheNaturalWidth, AppendsTheEllipsis)
{
    ElidedItem item(QStringLiteral("one\ntwo"));
    const QString expected = QStringLiteral("one") + kEllipsis;
    EXPECT_TRUE(item.IsElided());
    EXPECT_EQ(item.boundingRect(), ElisionItem(expected).boundingRect());
    EXPECT_EQ(Ink(item).picture(), Ink(*std::make_unique<ElisionItem>(expected)).picture());
}

TEST(ElisionInTheNaturalWidth, KeepsRightToLeftTextInItsBoundingRect)
{
    ElidedItem item(QString::fromUtf8("שלום\nעולם"));
    EXPECT_EQ(item.boundingRect().left(), 0);
    EXPECT_TRUE(item.boundingRect().adjusted(-2, -2, 2, 2).contains(Ink(item).rect()));
    EXPECT_EQ(Ink(item).picture(),
              Ink(*std::make_unique<ElisionItem>(QString::fromUtf8("שלום…"))).picture());
}

TEST(ElisionOfWideLines, NeedsNoLineLimit)
{
    ElidedItem item(QStringLiteral("aaaaaaaaaa\nb\ncccccccccc"), 60, 0);
    item.SetWrapMode(QTextOption::NoWrap);
    EXPECT_EQ(item.ShownLineCount(), 3);
    const QString a = longestElided(QStringLiteral("a|a|a|a|a|a").split(QLatin1Char('|')), 60);
    const QString c = longestElided(QStringLiteral("c|c|c|c|c|c").split(QLatin1Char('|')), 60);
    EXPECT_EQ(Ink(item).picture(), pictureOf(a + QStringLiteral("\nb\n") + c, 60));
}

TEST(ElisionOfWideLines, DoesNotCountTrailingSpaces)
{
    for (const char* text : {"one     ", "שלום     "}) {
        const QString spaced = QString::fromUtf8(text);
        ElidedItem item(spaced, naturalWidth(spaced.trimmed()) + 1);
        item.SetWrapMode(QTextOption::NoWrap);
        EXPECT_FALSE(item.IsElided()) << text;
        item.SetFixedItemWidth(naturalWidth(spaced.trimmed()) - 1);
        EXPECT_TRUE(item.IsElided()) << text;
    }
}

TEST(ElisionOfWideLines, HappensWhenHalfAPixelIsMissing)
{
    for (const char* text : {"one", "one word more", "שלום"}) {
        const QString words = QString::fromUtf8(text);
        ElidedItem item(words, naturalWidth(words));
        item.SetWrapMode(QTextOption::NoWrap);
        EXPECT_FALSE(item.IsElided()) << text;
        item.SetFixedItemWidth(naturalWidth(words) - 0.5);
        EXPECT_TRUE(item.IsElided()) << text;
    }
}

TEST(ElisionOfWideLines, RespectsTheMarginsOfTheFrame)
{
    ElidedItem item(QStringLiteral("aaaaaaaaaa"), 100, 1);
    item.SetWrapMode(QTextOption::NoWrap);
    QTextFrameFormat format = item.document()->rootFrame()->frameFormat();
    format.setLeftMargin(15);
    format.setRightMargin(25);
    item.document()->rootFrame()->setFrameFormat(format);
    const QString expected =
        longestElided(QStringLiteral("a|a|a|a|a|a|a").split(QLatin1Char('|')), 60);
    const QRectF ink = Ink(item).rect();
    EXPECT_NEAR(ink.width(), naturalWidth(expected), 3);
    EXPECT_NEAR(ink.left(), 15, 2);
}

TEST(ElisionInATinyWidth, ShowsOnlyTheEllipsis)
{
    for (qreal width : {0.5, 3.0, 10.0}) {
        ElidedItem item(QStringLiteral("WWW"), width);
        item.SetWrapMode(QTextOption::NoWrap);
        EXPECT_TRUE(item.IsElided());
        EXPECT_EQ(item.boundingRect().width(), width);
        EXPECT_EQ(Ink(item).picture(), pictureOf(kEllipsis, width));
    }
}

TEST(Elision, IsOffAtFirst)
{
    ElisionItem item(QStringLiteral("one\ntwo"));
    item.SetMaxLineCount(1);
    EXPECT_FALSE(item.IsElided());
    EXPECT_EQ(item.boundingRect().width(), naturalWidth(QStringLiteral("one")));
    item.SetElide(true);
    EXPECT_TRUE(item.IsElided());
    item.SetElide(false);
    EXPECT_FALSE(item.IsElided());
}

QTextCharFormat coloured(const QColor& color)
{
    QTextCharFormat format;
    format.setForeground(color);
    return format;
}

TEST(ElisionOfSpans, KeepsTheFormatsAndGivesTheEllipsisTheLastOne)
{
    const QTextCharFormat red = coloured(QColor(200, 0, 0));
    const QTextCharFormat blue = coloured(QColor(0, 0, 200));
    const QTextCharFormat green = coloured(QColor(0, 150, 0));
    const qreal width = naturalWidth(QStringLiteral("HHHH") + kEllipsis) + 1;
    ElidedItem item(QString(), width);
    item.InsertRichText(QStringLiteral("HH"), true, &red);
    item.InsertRichText(QStringLiteral("HH"), true, &blue);
    item.InsertRichText(QStringLiteral("HH"), true, &green);

    ElisionItem expected;
    expected.InsertRichText(QStringLiteral("HH"), true, &red);
    expected.InsertRichText(QStringLiteral("HH") + kEllipsis, true, &blue);
    expected.SetFixedItemWidth(width);
    EXPECT_EQ(Ink(item).picture(), Ink(expected).picture());
}

TEST(ElisionOfSpans, FollowsTheFormatsOfLaterLines)
{
    const QTextCharFormat red = coloured(QColor(200, 0, 0));
    const QTextCharFormat blue = coloured(QColor(0, 0, 200));
    const qreal width = naturalWidth(QStringLiteral("HHH") + kEllipsis) + 1;
    ElidedItem item(QString(), width, 2);
    item.InsertRichText(QStringLiteral("HHH HH"), true, &red);
    item.InsertRichText(QStringLiteral("HH HHHH"), true, &blue);

    ElisionItem expected;
    expected.InsertRichText(QStringLiteral("HHH") + kLineSeparator + QStringLiteral("HH"), true,
                            &red);
    expected.InsertRichText(QStringLiteral("H") + kEllipsis, true, &blue);
    expected.SetFixedItemWidth(width);
    EXPECT_EQ(Ink(item).picture(), Ink(expected).picture());
}

QTextCharFormat tall(const TextItem& item)
{
    QFont font = item.font();
    font.setPixelSize(60);
    QTextCharFormat format;
    format.setFont(font);
    return format;
}

TEST(ElisionOfSpans, RemovesTheHeightOfHiddenText)
{
    ElidedItem item(QStringLiteral("HHHHHHHHHH\nb"), 80, 0);
    item.SetWrapMode(QTextOption::NoWrap);
    const QRectF plain = item.boundingRect();
    const qreal ascent = item.FirstLineAscent();

    const QTextCharFormat format = tall(item);
    QTextCursor cursor(item.document());
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertText(QStringLiteral("TALL"), format);
    EXPECT_EQ(item.boundingRect(), plain);
    EXPECT_EQ(item.FirstLineAscent(), ascent);
}

TEST(ElisionOfSpans, AddsTheHeightOfTextFromTheNextLine)
{
    ElidedItem item(QStringLiteral("HH "), 160);
    const qreal low = item.boundingRect().height();
    const QTextCharFormat format = tall(item);
    item.InsertRichText(QStringLiteral("iiiiiiiiiiiiii"), true, &format);
    EXPECT_TRUE(item.IsElided());
    EXPECT_GT(item.boundingRect().height(), 2 * low);
    EXPECT_TRUE(item.boundingRect().contains(Ink(item).rect()));
}

TEST(ElisionOfLongText, FindsTheLongestStartThatFits)
{
    ElidedItem item(QStringLiteral("word ").repeated(20000), 150);
    item.SetWrapMode(QTextOption::NoWrap);
    EXPECT_TRUE(item.IsElided());
    const QStringList start =
        QStringLiteral("w|o|r|d| |w|o|r|d| |w|o|r|d| |w|o|r|d| |w|o|r|d| ").split(QLatin1Char('|'));
    EXPECT_EQ(Ink(item).picture(), pictureOf(longestElided(start, 150), 150));
}

TEST(ElisionOfLongText, WorksWithCharactersWithoutWidth)
{
    const QString marks = QStringLiteral("a") + QString(50000, QChar(0x200B));
    ElidedItem item(marks + QStringLiteral("\nb"), 100);
    EXPECT_TRUE(item.IsElided());
    EXPECT_EQ(item.ShownLineCount(), 1);
    EXPECT_TRUE(item.boundingRect().contains(Ink(item).rect()));
}

} // namespace
