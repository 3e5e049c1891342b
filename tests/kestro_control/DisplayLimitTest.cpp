// How much of a text is laid out, in characters.
#include "Ink.h"
#include "TextLimits.h"
#include "TextWork.h"
#include "support/RowName.h"

#include <kestro_control/KestroControlManager.h>
#include <kestro_control/KestroControlSupport.h>
#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

#include <QTextBoundaryFinder>
#include <QTextDocument>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace {

constexpr int kMillion = 1'000'000;

int displayed(const TextItem& item)
{
    return item.document()->characterCount() - 1;
}

struct LimitItem : TextItem {
    explicit LimitItem(const QString& text = QString()) { InsertRichText(text, true); }
};

QString repeated(const char* unit, int length)
{
    const QString text = QString::fromUtf8(unit);
    return text.repeated(length / text.size());
}

// Qt finds the ends of Thai words only where it has a dictionary, which it has not on Windows.
// There, the text is an unbroken run.
int minimumOfThai()
{
    const QString words = QString::fromUtf8("อาหารเย็น");
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, words);
    return finder.toNextBoundary() < words.size() ? 15900 : 1900;
}

struct LimitRow {
    const char* name;
    // Made by the test: all processes make all rows.
    QString (*text)();
    int minimum;
    int maximum;

    friend std::ostream& operator<<(std::ostream& out, const LimitRow& row)
    {
        return out << row.name;
    }
};

class DisplayLimit : public testing::TestWithParam<LimitRow> { };

TEST_P(DisplayLimit, LimitsTheTextThatIsLaidOut)
{
    const LimitItem item(GetParam().text());
    EXPECT_GE(displayed(item), GetParam().minimum);
    EXPECT_LE(displayed(item), GetParam().maximum);
    EXPECT_TRUE(item.toPlainText().startsWith(item.document()->toPlainText()));
}

TEST_P(DisplayLimit, KeepsAllOfThePlainText)
{
    const LimitItem item(GetParam().text());
    QString all = GetParam().text();
    all.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    EXPECT_EQ(item.toPlainText(), all);
    EXPECT_EQ(item.property("plainText").toString(), all);
}

TEST_P(DisplayLimit, AppliesToTextInPieces)
{
    LimitItem item;
    const QString text = GetParam().text();
    for (int at = 0; at < 50000; at += 97)
        item.InsertRichText(text.mid(at, 97), true);
    EXPECT_LE(displayed(item), GetParam().maximum + 2000);
}

INSTANTIATE_TEST_SUITE_P(
    PathologicalTexts, DisplayLimit,
    testing::Values(
        LimitRow {"Unbroken", [] { return repeated("a", kMillion); }, 1900, 2000},
        LimitRow {"Words", [] { return repeated("some words ", kMillion); }, 15900, 16000},
        LimitRow {"Chinese", [] { return repeated("晚上", kMillion); }, 15900, 16000},
        LimitRow {"AlternatingDirections", [] { return repeated("aש", kMillion); }, 200, 300},
        LimitRow {"AlternatingDirectionsOfWords", [] { return repeated("a ש ", kMillion); }, 2800,
                  3300},
        LimitRow {"AlternatingScripts", [] { return repeated("aя", kMillion); }, 200, 300},
        LimitRow {"DigitsInHebrew", [] { return repeated("ש1", kMillion); }, 200, 300},
        LimitRow {"ExplicitDirections", [] { return repeated("\u202a\u2069", kMillion); }, 200,
                  2000},
        LimitRow {"Marks", [] { return QLatin1Char('a') + repeated("\u0301", kMillion / 10); }, 200,
                  300},
        LimitRow {"Nuls", [] { return QString(kMillion, QChar(0)); }, 1000, 16000},
        LimitRow {"LoneSurrogates", [] { return QString(kMillion, QChar(0xD83D)); }, 1000, 16000},
        LimitRow {"LineEnds", [] { return QString(kMillion, QLatin1Char('\n')); }, 1700, 1800},
        LimitRow {"WindowsLineEnds", [] { return repeated("\r\n", kMillion); }, 800, 1800},
        LimitRow {"Emoji", [] { return repeated("😀", kMillion); }, 740, 780},
        LimitRow {"NewEmoji", [] { return repeated("\U0001F970", kMillion); }, 740, 780},
        LimitRow {"EmojiOfOneUnit", [] { return repeated("⚽", kMillion); }, 380, 400},
        LimitRow {"MadeEmoji", [] { return repeated("❤\uFE0F", kMillion); }, 380, 400},
        LimitRow {"Keys", [] { return repeated("1\uFE0F\u20E3", kMillion); }, 60, 80},
        LimitRow {"Flags", [] { return repeated("\U0001F1E9\U0001F1EA", kMillion); }, 1400, 1460},
        LimitRow {"Thai", [] { return repeated("อาหารเย็น", kMillion); }, minimumOfThai(), 16000}),
    plix::test::RowName());

TEST(DisplayLimit, ShowsRealTextsInFull)
{
    for (const char* sentence :
         {"Dinner is ready at seven, please bring some juice. ",
          "晚上一起吃饭吗？我们等你 at seven。", "夕食は７時です。ジュースを持ってきてください。",
          "العَشَاءُ جَاهِزٌ فِي السَّاعَةِ 7، تَعَالَوْا. ", "ארוחת הערב מוכנה ב-7, בואו. ",
          "อาหารเย็นพร้อมแล้วตอนเจ็ดโมง ", "रात का खाना सात बजे तैयार है। ",
          "https://example.org/a/path?with=parameters&and=more "}) {
        const QString text = repeated(sentence, 4000);
        EXPECT_EQ(displayed(LimitItem(text)), text.size()) << sentence;
    }
}

TEST(DisplayLimit, ShowsRealSpansInFull)
{
    for (const char* span : {"word ", "some words ", "晚上", "שלום "}) {
        LimitItem item;
        for (int i = 0; i < 600; ++i)
            item.InsertRichText(QString::fromUtf8(span), true);
        EXPECT_EQ(displayed(item), QString::fromUtf8(span).size() * 600) << span;
    }
}

TEST(DisplayLimit, ShowsRealEmojiInFull)
{
    const QString flags = repeated("\U0001F1E9\U0001F1EA", 4 * 250);
    EXPECT_EQ(displayed(LimitItem(flags)), flags.size()) << "all flags of the world";
    const QString smileys = repeated("😀", 2 * 300);
    EXPECT_EQ(displayed(LimitItem(smileys)), smileys.size());
}

// One below, at, and one above each limit.
TEST(DisplayLimit, IsExact)
{
    using namespace kestro::limits;
    // The call, and the first letter of a script.
    const int words = kTextCost - 2 * kRunCost;
    const int word = kWordCost - kRunCost;
    for (const int more : {-1, 0, 1}) {
        EXPECT_EQ(displayed(LimitItem(repeated("a ", words + 1).left(words + more))),
                  words + std::min(more, 0));
        EXPECT_EQ(displayed(LimitItem(QString(word + more, QLatin1Char('a')))),
                  word + std::min(more, 0));
    }
}

// ----- A maximum cost

constexpr int kStartOfText = 2 * kestro::limits::kRunCost;

TEST(MaximumCost, IsExact)
{
    for (const int length : {50, 5000}) {
        const QString text = repeated("a ", length);
        const int cost = kStartOfText + length;
        EXPECT_EQ(LimitItem(text).Cost(), cost);
        for (const int more : {-1, 0, 1}) {
            LimitItem item;
            item.SetMaximumCost(cost + more);
            item.InsertRichText(text, true);
            EXPECT_EQ(displayed(item), length + std::min(more, 0)) << more;
            EXPECT_EQ(item.Cost(), cost + std::min(more, 0)) << more;
            EXPECT_EQ(item.ExceedsMaximumCost(), more < 0) << more;
            EXPECT_EQ(item.toPlainText(), text);
        }
    }
}

struct PriceRow {
    const char* name;
    const char* text;
    int cost;

    friend std::ostream& operator<<(std::ostream& out, const PriceRow& row)
    {
        return out << row.name;
    }
};

class PriceOfAText : public testing::TestWithParam<PriceRow> { };

TEST_P(PriceOfAText, IsThatOfItsCharacters)
{
    using namespace kestro::limits;
    const QString text = QString::fromUtf8(GetParam().text);
    EXPECT_EQ(LimitItem(text).Cost(), kRunCost + GetParam().cost);
    // Long texts are searched for words, and have the same price.
    EXPECT_EQ(LimitItem(text + repeated("a ", 400)).Cost()
                  - LimitItem(text + QLatin1Char('a')).Cost(),
              399);
}

std::vector<PriceRow> prices()
{
    using namespace kestro::limits;
    constexpr int kPicture = kPicturesInSum * kPictographCost;
    constexpr int kFlagHalf = kPicturesInSum * kFlagHalfCost;
    return {{"Empty", "", -kRunCost},
            {"Letters", "ab", kRunCost + 2},
            {"TwoScripts", "aя", 2 * kRunCost + 2},
            {"LineEnd", "a\n", 2 * kRunCost + 2},
            {"Emoji", "😀", 2 + kPicture},
            {"Flag", "\U0001F1E9\U0001F1EA", kRunCost + 4 + 2 * kFlagHalf},
            {"Joiner", "\u200d", 1 + kJoinerCost}};
}

INSTANTIATE_TEST_SUITE_P(Texts, PriceOfAText, testing::ValuesIn(prices()), plix::test::RowName());

TEST(MaximumCost, LeavesAnEllipsisOfATextThatHasNothingLeft)
{
    for (const char* text : {"words", "😀", "two\nlines", "שלום"}) {
        LimitItem item;
        item.SetElide(true);
        item.SetMaximumCost(0);
        item.InsertRichText(QString::fromUtf8(text), true);
        LimitItem ellipsis(QStringLiteral("…"));
        EXPECT_TRUE(item.IsElided());
        EXPECT_EQ(item.ShownLineCount(), 1);
        EXPECT_EQ(item.boundingRect().size(), ellipsis.boundingRect().size());
        EXPECT_EQ(item.NaturalLines().width, ellipsis.NaturalLines().width);
        EXPECT_EQ(item.toPlainText(), QString::fromUtf8(text));
        item.SetFixedItemWidth(100);
        EXPECT_TRUE(item.IsElided());
        item.HighlightText({QString::fromUtf8(text)}, Qt::yellow);
        EXPECT_EQ(item.CharacterAt({2, 5}), -1);
        EXPECT_TRUE(item.CharacterRect(0).isEmpty());
    }
}

TEST(MaximumCost, StaysWhenTheTextIsReplaced)
{
    LimitItem item;
    item.SetMaximumCost(kStartOfText + 10);
    for (int i = 0; i < 2; ++i) {
        item.setPlainText(repeated("a ", 100));
        EXPECT_EQ(displayed(item), 10);
        EXPECT_TRUE(item.ExceedsMaximumCost());
    }
    item.setPlainText(QStringLiteral("a"));
    EXPECT_FALSE(item.ExceedsMaximumCost());
}

TEST(MaximumCost, DoesNotCountWhatOnlyTheDisplayLimitCuts)
{
    LimitItem item;
    item.SetMaximumCost(kestro::limits::kTextCost + 1);
    item.InsertRichText(repeated("some words ", kMillion), true);
    EXPECT_FALSE(item.ExceedsMaximumCost());
    EXPECT_LE(displayed(item), kestro::limits::kTextCost);
}

// Searching all of it would take time that grows with the square of the length.
TEST(DisplayLimit, SearchesOnlyWhatMayBeShown)
{
    const QString thai = repeated("อาหารเย็น", kMillion);
    const kestro::TextWork before = kestro::WorkSoFar();
    const LimitItem item(thai);
    EXPECT_LE(kestro::WorkSoFar().searchedCharacters - before.searchedCharacters,
              kestro::limits::kTextCost + kestro::limits::kWordCost);
    EXPECT_EQ(item.toPlainText().size(), thai.size());
}

TEST(DisplayLimit, EndsTheTextInAnEllipsis)
{
    for (int lines : {0, 3}) {
        LimitItem item(repeated("some words ", kMillion));
        item.SetMaxLineCount(lines);
        item.SetFixedItemWidth(300);
        EXPECT_FALSE(item.IsElided());
        item.SetElide(true);
        EXPECT_TRUE(item.IsElided());
    }
    LimitItem fits(repeated("some words ", 5000));
    fits.SetElide(true);
    fits.SetFixedItemWidth(300);
    EXPECT_FALSE(fits.IsElided());
}

TEST(DisplayLimit, AppliesToTheWholeItem)
{
    const QString half = repeated("some words ", 9000);
    LimitItem item(half);
    EXPECT_EQ(displayed(item), half.size());
    item.InsertRichText(half, true);
    EXPECT_LE(displayed(item), 16000);
    const int before = displayed(item);
    item.InsertRichText(QStringLiteral("more"), true);
    EXPECT_EQ(displayed(item), before) << "text after hidden text is hidden";
    EXPECT_EQ(item.toPlainText(), half + half + QStringLiteral("more"));
}

TEST(DisplayLimit, ShowsWhatIsInsertedAtTheStart)
{
    LimitItem item(repeated("some words ", 20000));
    const QString all = item.toPlainText();
    item.InsertRichText(QStringLiteral("start "), false);
    EXPECT_EQ(item.toPlainText(), QStringLiteral("start ") + all);
    EXPECT_TRUE(item.document()->toPlainText().startsWith(QLatin1String("start some words")));
    EXPECT_LE(displayed(item), 16000);
    EXPECT_GT(displayed(item), 15000);
}

TEST(DisplayLimit, IsResetWhenTheTextIsReplaced)
{
    const QString text = repeated("some words ", 9000);
    LimitItem item(repeated("some words ", kMillion));
    item.ClearText();
    EXPECT_EQ(item.toPlainText(), QString());
    item.InsertRichText(text, true);
    EXPECT_EQ(displayed(item), text.size());
    EXPECT_EQ(item.toPlainText(), text);
    item.setPlainText(text.repeated(3));
    EXPECT_LE(displayed(item), 16000);
    EXPECT_EQ(item.toPlainText(), text.repeated(3));
}

TEST(DisplayLimit, KeepsMarkupInOrder)
{
    LimitItem item;
    item.SetMarkupEnabled(true);
    item.InsertRichText(repeated("some words &amp; ", 20000)
                            + QStringLiteral("<m user=\"1\">Ada</m><e code=\"1F600\"/>"),
                        true);
    EXPECT_TRUE(item.toPlainText().endsWith(QString::fromUtf8("some words & Ada😀")));
    EXPECT_LE(displayed(item), 16000);
}

TEST(DisplayLimit, DoesNotSplitASurrogatePairOrALineEnd)
{
    for (int spaces = 0; spaces < 4; ++spaces) {
        const QString start(spaces, QLatin1Char(' '));
        const LimitItem emoji(start + repeated("😀", 40000));
        EXPECT_FALSE(emoji.document()->toRawText().at(displayed(emoji) - 1).isHighSurrogate());
        const LimitItem lines(start + repeated("a\r\n", 40000));
        EXPECT_FALSE(lines.toPlainText().contains(QLatin1String("\n\n")));
    }
}

TEST(DisplayLimit, AppliesToEmojiPictures)
{
    class Support : public KestroControlSupport {
    public:
        Support() { KestroControlManager::GetInstance()->SetKestroControlSupport(this); }
        QString GetFontFamily() const override { return {}; }
        QImage GetEmojiImage(const QString&) const override
        {
            return QImage(4, 4, QImage::Format_RGB32);
        }
    } const support;
    LimitItem item;
    item.SetMarkupEnabled(true);
    item.InsertRichText(repeated("<e code=\"1F600\"/>", 200000), true);
    EXPECT_LE(displayed(item), 16000);
    EXPECT_EQ(item.toPlainText().size(), 200000 / 17 * 2);
}

TEST(DisplayLimit, LimitsTheNumberOfLines)
{
    for (const char* unit : {"a\n", "\u2028", "a b "}) {
        LimitItem item(repeated(unit, kMillion));
        item.SetElide(true);
        item.SetFixedItemWidth(1);
        EXPECT_LE(item.ShownLineCount(), 16001) << unit;
    }
}

} // namespace
