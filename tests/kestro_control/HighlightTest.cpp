// What is drawn behind highlighted words. It is compared with an item whose words
// have a background in their format.
#include "HighlightWords.h"
#include "Ink.h"
#include "TextLimits.h"
#include "support/RowName.h"

#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QAbstractTextDocumentLayout>
#include <QTextDocument>

#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace {

const QColor kHighlightColor(255, 255, 0);

using Ranges = std::vector<std::pair<int, int>>;

// Searches for every word at every position.
Ranges coverNaively(const QString& text, const QStringList& words)
{
    std::vector<bool> covered(static_cast<std::size_t>(text.size()) + 1, false);
    for (const QString& word : words) {
        if (word.isEmpty())
            continue;
        for (int at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(word, at + 1, Qt::CaseInsensitive))
            std::fill_n(covered.begin() + at, word.size(), true);
    }
    Ranges ranges;
    for (int at = 0; at < text.size(); ++at) {
        if (!covered[static_cast<std::size_t>(at)])
            continue;
        if (ranges.empty() || ranges.back().second != at)
            ranges.emplace_back(at, at);
        ranges.back().second = at + 1;
    }
    return ranges;
}

TEST(HighlightWords, FindTheSameAsANaiveSearch)
{
    const char* const letters[] = {"a", "A", "b", "B", "ab", " ", "é", "É", "ς", "σ", "𐐀", "𐐨"};
    std::mt19937 random(11);
    std::uniform_int_distribution<std::size_t> letter(0, std::size(letters) - 1);
    const auto generated = [&](int length) {
        QString text;
        while (length-- > 0)
            text += QString::fromUtf8(letters[letter(random)]);
        return text;
    };
    int found = 0;
    for (int i = 0; i < 5000; ++i) {
        const QString text = generated(static_cast<int>(random() % 30));
        QStringList words;
        for (int count = static_cast<int>(random() % 4); count > 0; --count)
            words.append(generated(static_cast<int>(random() % 5)));
        const Ranges expected = coverNaively(text, words);
        ASSERT_EQ(kestro::HighlightWords(words).CoveredRanges(text), expected)
            << text.toStdString() << ": " << words.join(QLatin1Char('|')).toStdString();
        found += !expected.empty();
    }
    EXPECT_GT(found, 1000);
}

TEST(HighlightWords, HaveAMaximumNumber)
{
    for (const int more : {-1, 0, 1}) {
        QStringList words;
        for (int i = 0; i < kestro::limits::kHighlightWords + more; ++i)
            words.append(QStringLiteral("<%1>").arg(i));
        const kestro::HighlightWords kept(words);
        EXPECT_FALSE(kept.CoveredRanges(words.at(words.size() - 2)).empty()) << more;
        EXPECT_EQ(kept.CoveredRanges(words.last()).empty(), more > 0) << more;
    }
}

TEST(HighlightWords, AreFoundInALongTextOfOneLetter)
{
    const QString text(200000, QLatin1Char('a'));
    QStringList words;
    for (int length = 1; length < 100; ++length)
        words.append(text.left(length * 1000));
    EXPECT_EQ(kestro::HighlightWords(words).CoveredRanges(text), Ranges({{0, text.size()}}));
}

// ----- In an item

struct HighlightItem : TextItem {
    explicit HighlightItem(const QString& text = QString())
    {
        QFont itemFont(QStringLiteral("DejaVu Sans"));
        itemFont.setPixelSize(20);
        setFont(itemFont);
        setDefaultTextColor(QColor(0, 0, 160));
        InsertRichText(text, true);
    }
};

struct HighlightRow {
    const char* name;
    // In spans, separated by "|".
    const char* text;
    // Separated by "|".
    const char* words;
    qreal width;

    friend std::ostream& operator<<(std::ostream& out, const HighlightRow& row)
    {
        return out << row.name;
    }
};

class Highlight : public testing::TestWithParam<HighlightRow> {
protected:
    QStringList spans() const { return QString::fromUtf8(GetParam().text).split(QLatin1Char('|')); }

    QStringList words() const
    {
        return QString::fromUtf8(GetParam().words).split(QLatin1Char('|'));
    }

    void fill(TextItem& item) const
    {
        int number = 0;
        for (const QString& span : spans()) {
            QTextCharFormat format;
            format.setForeground(QColor(++number % 2 ? 200 : 0, 100, 0));
            item.InsertRichText(span, true, &format);
        }
        item.SetFixedItemWidth(GetParam().width);
    }

    // Gives the words the background by their format.
    void mark(TextItem& item) const
    {
        QTextCharFormat marked;
        marked.setBackground(kHighlightColor);
        QTextCursor cursor(item.document());
        for (const auto& [start, end] : coverNaively(item.toPlainText(), words())) {
            cursor.setPosition(start);
            cursor.setPosition(end, QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(marked);
        }
    }
};

// The ranges of background in a row of pixels.
Ranges highlightAlong(const QImage& picture, int y)
{
    Ranges ranges;
    for (int x = 0; x < picture.width(); ++x) {
        if (picture.pixelColor(x, y) != kHighlightColor)
            continue;
        if (ranges.empty() || ranges.back().second != x)
            ranges.emplace_back(x, x);
        ranges.back().second = x + 1;
    }
    return ranges;
}

TEST_P(Highlight, IsBehindTheWords)
{
    for (qreal scale : {1.0, 1.5, 2.0}) {
        HighlightItem item;
        fill(item);
        item.HighlightText(words(), kHighlightColor);
        HighlightItem expected;
        fill(expected);
        mark(expected);

        const qreal lineHeight = item.boundingRect().height() / item.ShownLineCount();
        const QImage picture = Ink(item, scale).picture();
        const QImage expectedPicture = Ink(expected, scale).picture();
        int pixels = 0;
        for (int line = 0; line < item.ShownLineCount(); ++line) {
            // Close to the top of the line, above its letters.
            const int y = static_cast<int>((50 + line * lineHeight + 1.5) * scale);
            const Ranges found = highlightAlong(picture, y);
            const Ranges expectedRanges = highlightAlong(expectedPicture, y);
            ASSERT_EQ(found.size(), expectedRanges.size()) << "line " << line;
            for (std::size_t i = 0; i < found.size(); ++i) {
                // At the ends of the words, formats remove the kerning.
                EXPECT_NEAR(found[i].first, expectedRanges[i].first, scale) << "line " << line;
                EXPECT_NEAR(found[i].second, expectedRanges[i].second, scale) << "line " << line;
                pixels += found[i].second - found[i].first;
            }
        }
        EXPECT_GT(pixels, 0);
    }
}

TEST_P(Highlight, ChangesOnlyTheWords)
{
    HighlightItem item;
    fill(item);
    const QImage before = Ink(item).picture();
    item.HighlightText(words(), kHighlightColor);
    const QImage highlighted = Ink(item).picture();
    ASSERT_NE(highlighted, before);

    item.HighlightText(words(), QColor(0, 255, 255));
    const QImage withOtherColor = Ink(item).picture();
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            // Only highlighted pixels depend on the background.
            if (highlighted.pixel(x, y) == withOtherColor.pixel(x, y)
                && highlighted.pixelColor(x, y) != QColor(Qt::black)) {
                ASSERT_EQ(highlighted.pixel(x, y), before.pixel(x, y)) << x << ", " << y;
            }
        }
    }
}

TEST_P(Highlight, IsRemovedCompletely)
{
    for (const QStringList& none : {QStringList(), QStringList {QString(), QString()}}) {
        HighlightItem item;
        fill(item);
        const QImage before = Ink(item).picture();
        item.HighlightText(words(), kHighlightColor);
        EXPECT_NE(Ink(item).picture(), before);
        item.HighlightText(none, kHighlightColor);
        EXPECT_EQ(Ink(item).picture(), before);
    }
}

TEST_P(Highlight, CausesNoLayout)
{
    HighlightItem item;
    fill(item);
    const QRectF rect = item.boundingRect();
    int layouts = 0;
    int changes = 0;
    QObject::connect(item.document()->documentLayout(), &QAbstractTextDocumentLayout::update,
                     [&layouts] { ++layouts; });
    QObject::connect(item.document(), &QTextDocument::contentsChange, [&changes] { ++changes; });
    item.HighlightText(words(), kHighlightColor);
    Ink(item).rect();
    item.HighlightText({}, kHighlightColor);
    Ink(item).rect();
    EXPECT_EQ(layouts, 0);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(item.boundingRect(), rect);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Highlight,
    testing::Values(
        HighlightRow {"OneWord", "some words on a line", "words", -1},
        HighlightRow {"AllOccurrences", "a banana and a bandana", "an", -1},
        HighlightRow {"AllWords", "some words on a line", "line|some", -1},
        HighlightRow {"AnotherCase", "Some ÉTÉ woRds", "soME|été|WORDS", -1},
        HighlightRow {"Overlapping", "bananas", "ana|nas", -1},
        HighlightRow {"OverlappingItself", "xaaaax", "aa", -1},
        HighlightRow {"OneInsideTheOther", "some words", "words|or", -1},
        HighlightRow {"AcrossSpans", "so|me wo|rds on a line", "ome w|ds o", -1},
        HighlightRow {"AcrossLines", "some words on a line", "words on a", 110},
        HighlightRow {"PartsOfLongWords", "someverylongwordthatisbroken", "longword", 90},
        HighlightRow {"InSeveralParagraphs", "some words\nmore words\n\nwords", "words", -1},
        HighlightRow {"EmptyWordsAmongOthers", "some words", "|words|", -1},
        HighlightRow {"WholeText", "some words", "some words", -1},
        HighlightRow {"Hebrew", "שלום לכולם כאן", "לכ|לום", -1},
        HighlightRow {"HebrewWrapped", "שלום לכולם כאן ועוד", "לום לכ|עוד", 100},
        HighlightRow {"HebrewInLatin", "see שלום לכולם now", "ee של|ם", -1},
        HighlightRow {"LatinInHebrew", "שלום words כאן", "ord|ם w", -1},
        HighlightRow {"NumbersInHebrew", "בשעה 1234 כאן", "23", -1},
        HighlightRow {"Chinese", "晚上一起吃饭吗我们等你", "一起|吃饭吗|等", 110}),
    plix::test::RowName());

TEST(HighlightOfItem, ReplacesTheEarlierOne)
{
    HighlightItem item(QStringLiteral("some words"));
    HighlightItem expected(QStringLiteral("some words"));
    item.HighlightText({QStringLiteral("some")}, Qt::green);
    item.HighlightText({QStringLiteral("words")}, kHighlightColor);
    expected.HighlightText({QStringLiteral("words")}, kHighlightColor);
    EXPECT_EQ(Ink(item).picture(), Ink(expected).picture());
    EXPECT_FALSE(Ink(item).has(Qt::green));
}

TEST(HighlightOfItem, FollowsTheText)
{
    HighlightItem item(QStringLiteral("some"));
    item.HighlightText({QStringLiteral("word")}, kHighlightColor);
    EXPECT_FALSE(Ink(item).has(kHighlightColor));
    item.InsertRichText(QStringLiteral(" words"), true);
    EXPECT_TRUE(Ink(item).has(kHighlightColor));
    item.SetFixedItemWidth(50);
    EXPECT_TRUE(Ink(item).has(kHighlightColor));
    item.ClearText();
    EXPECT_FALSE(Ink(item).has(kHighlightColor));
}

TEST(HighlightOfItem, HasReadableText)
{
    for (const QColor& background :
         {QColor(255, 255, 0), QColor(0, 0, 90), QColor(0x11, 0x8D, 0xFF), QColor(0, 0, 0),
          QColor(255, 255, 255)}) {
        HighlightItem item(QStringLiteral("HHHH"));
        item.setDefaultTextColor(background);
        item.HighlightText({QStringLiteral("HHHH")}, background);
        const Ink ink(item, 3);
        const bool isDark = background.lightness() < 60;
        EXPECT_TRUE(ink.has(isDark ? Qt::white : Qt::black)) << background.name().toStdString();
    }
}

TEST(HighlightOfItem, CoversTheBackgroundsOfSpans)
{
    QTextCharFormat format;
    format.setBackground(Qt::green);
    HighlightItem item;
    item.InsertRichText(QStringLiteral("word"), true, &format);
    ASSERT_TRUE(Ink(item).has(Qt::green));
    item.HighlightText({QStringLiteral("word")}, kHighlightColor);
    EXPECT_FALSE(Ink(item).has(Qt::green));
    EXPECT_TRUE(Ink(item).has(kHighlightColor));
}

TEST(HighlightOfItem, NeedsABrush)
{
    HighlightItem item(QStringLiteral("word"));
    const QImage before = Ink(item).picture();
    item.HighlightText({QStringLiteral("word")}, Qt::NoBrush);
    EXPECT_EQ(Ink(item).picture(), before);
}

TEST(HighlightOfElidedLine, IsBehindShownWords)
{
    for (const char* text : {"some words and more and more", "שלום words ועוד ועוד ועוד"}) {
        HighlightItem item(QString::fromUtf8(text));
        item.SetElide(true);
        item.SetMaxLineCount(1);
        item.SetFixedItemWidth(150);
        ASSERT_TRUE(item.IsElided());
        item.HighlightText({QStringLiteral("word")}, kHighlightColor);
        const QImage picture = Ink(item).picture();
        HighlightItem whole(QString::fromUtf8(text));
        whole.SetFixedItemWidth(1000);
        whole.HighlightText({QStringLiteral("word")}, kHighlightColor);
        const QImage wholePicture = Ink(whole).picture();

        const Ranges found = highlightAlong(picture, 52);
        const Ranges expectedRanges = highlightAlong(wholePicture, 52);
        ASSERT_EQ(found.size(), 1U);
        ASSERT_EQ(expectedRanges.size(), 1U);
        EXPECT_NEAR(found[0].second - found[0].first,
                    expectedRanges[0].second - expectedRanges[0].first, 1);
    }
}

TEST(HighlightOfElidedLine, IsNotBehindTheEllipsis)
{
    HighlightItem item(QStringLiteral("some words and more and more"));
    item.SetElide(true);
    item.SetMaxLineCount(1);
    item.SetFixedItemWidth(150);
    item.HighlightText({QStringLiteral("more"), QString(QChar(0x2026))}, kHighlightColor);
    EXPECT_FALSE(Ink(item).has(kHighlightColor));
}

TEST(HighlightOfElidedLine, IsBehindTheShownPartOfAWord)
{
    HighlightItem item(QStringLiteral("wordswordswordswords"));
    item.SetElide(true);
    item.SetMaxLineCount(1);
    item.SetFixedItemWidth(150);
    item.HighlightText({item.toPlainText()}, kHighlightColor);
    const Ranges found = highlightAlong(Ink(item).picture(), 52);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].first, 50);
    EXPECT_LT(found[0].second, 200) << "the ellipsis belongs to no word";
    EXPECT_GT(found[0].second, 150);
}

} // namespace
