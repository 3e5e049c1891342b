// Texts, names, labels and links that pretend to be something else: what the reader sees, and
// what the host gets.
#include "CardTree.h"
#include "ClickHost.h"

#include "support/Mouse.h"
#include "support/Pixels.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <kestro_control/TextItem.h>

#include <QGraphicsScene>
#include <QImage>
#include <QPainter>

#include <ostream>

namespace plix::test {
namespace {

struct Trick {
    const char* name;
    std::string text;

    friend std::ostream& operator<<(std::ostream& out, const Trick& trick)
    {
        return out << trick.name;
    }
};

std::string times(int n, const std::string& part)
{
    std::string all;
    for (int i = 0; i < n; ++i)
        all += part;
    return all;
}

// Characters that change the order, hide, or look like others.
const std::vector<Trick>& tricks()
{
    static const std::vector<Trick> all {
        {"LeftToRightEmbedding", "Ann\u202aLee"},
        {"RightToLeftEmbedding", "Ann\u202bLee"},
        {"PopDirection", "Ann\u202cLee"},
        {"LeftToRightOverride", "Ann\u202dLee"},
        {"RightToLeftOverride", "Ann\u202eLee"},
        {"LeftToRightIsolate", "Ann\u2066Lee"},
        {"RightToLeftIsolate", "Ann\u2067Lee"},
        {"FirstStrongIsolate", "Ann\u2068Lee"},
        {"PopIsolate", "Ann\u2069Lee"},
        {"ManyOverrides", times(20, "\u202e") + "Ann"},
        {"ManyIsolates", times(200, "\u2067") + "Ann"},
        {"ManyPops", times(200, "\u2069\u202c") + "Ann"},
        {"IsolateOutOfOverride", "Ann\u2069\u202e Lee"},
        {"LeftToRightMark", "Ann\u200eLee"},
        {"RightToLeftMark", "Ann\u200fLee"},
        {"ArabicLetterMark", "Ann\u061cLee"},
        {"ZeroWidthSpace", "Ann\u200bLee"},
        {"ZeroWidthNonJoiner", "Ann\u200cLee"},
        {"ZeroWidthJoiner", "Ann\u200dLee"},
        {"WordJoiner", "Ann\u2060Lee"},
        {"ByteOrderMark", "Ann\ufeffLee"},
        {"HangulFiller", "Ann\u3164Lee"},
        {"InvisibleSeparator", "Ann\u2063Lee"},
        {"VariationSelector", "Ann\ufe0eLee"},
        {"TagCharacters", "Ann\U000E0041\U000E0042Lee"},
        {"SoftHyphen", "Ann\u00adLee"},
        {"Hebrew", "עדה"},
        {"HebrewWithNumber", "עדה 12"},
        {"Arabic", "أحمد"},
        {"ArabicDigits", "٣٤"},
        {"LatinAndHebrew", "Ann עדה"},
        {"HebrewAndLatin", "עדה Ann"},
        {"CyrillicThatLooksLatin", "Аnn Lее"},
        {"GreekThatLooksLatin", "Αnn Lεε"},
        {"FullwidthLetters", "Ａｎｎ"},
        {"MathematicalLetters", "𝐀𝐧𝐧"},
        {"LigatureAndSharpS", "ﬁﬀ ß ſ"},
        {"DigitsThatLookLikeLetters", "Ann L33"},
        {"OneMark", "A\u0301nn"},
        {"ManyMarks", "A" + times(60, "\u0301") + "nn"},
        {"MarksBelow", "A" + times(60, "\u0330") + "nn"},
        {"MarkFirst", "\u0301Ann"},
        {"EnclosingMarks", "A\u20dd\u20e0nn"},
        {"TallArabicMarks", "أ" + times(20, "\u064e\u0651")},
        {"Tibetan", "\u0f40" + times(20, "\u0f71\u0f72")},
        {"WideCharacter", "\u2e3b\ufdfd"},
        {"LineSeparator", "Ann\u2028Lee"},
        {"ParagraphSeparator", "Ann\u2029Lee"},
        {"NextLine", "Ann\u0085Lee"},
        {"Escape", "Ann\x1b[31mLee"},
        {"Html", "<b>Ann</b><img src=x>"},
        {"Entity", "&lt;Ann&gt;"},
        {"ManySpaces", "Ann" + times(200, " ") + "Lee"},
        {"ObjectReplacement", "Ann\ufffcLee"},
        {"PrivateUse", "Ann\ue000\U0010fffdLee"},
    };
    return all;
}

// What QTextDocument::toPlainText() makes of a text.
QString plain(const std::string& text)
{
    QString result = QString::fromStdString(text);
    for (QChar& character : result) {
        if (character == QChar::LineSeparator || character == QChar::ParagraphSeparator)
            character = QLatin1Char('\n');
        else if (character == QChar::Nbsp)
            character = QLatin1Char(' ');
    }
    return result;
}

const TextItem& textOf(const TestCard& card, const std::vector<int>& path = {0, 0})
{
    return *card.ui<TextItem>(path);
}

// In a JSON string.
std::string escaped(const std::string& text)
{
    std::string json;
    for (const char c : text)
        json += c == '"' || c == '\\' ? std::string {'\\', c} : std::string {c};
    return json;
}

// Whether all that is painted is inside of the card.
bool staysInside(QGraphicsItem& root)
{
    constexpr int kAround = 200;
    QGraphicsScene scene;
    scene.addItem(&root);
    const QRectF rect = root.sceneBoundingRect();
    const QRectF around = rect.adjusted(-kAround, -kAround, kAround, kAround);
    QImage image(around.size().toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), around);
    painter.end();
    scene.removeItem(&root);
    const QRect ink =
        boundsOfPixels(image, image.rect(), [](QRgb pixel) { return qAlpha(pixel) > 0; });
    return rect.translated(-around.topLeft()).toAlignedRect().contains(ink);
}

class Spoofing : public PlixTest, public testing::WithParamInterface<Trick> { };

TEST_P(Spoofing, TextIsShownAsItIsAndInsideOfTheCard)
{
    const std::string& trick = GetParam().text;
    const TestCard card(bubbleWithBody(box("vertical", text(escaped(trick), R"("size": "5xl",)"))));
    EXPECT_EQ(textOf(card).toPlainText(), plain(trick));
    EXPECT_EQ(textOf(card).MentionCount(), 0);
    EXPECT_TRUE(staysInside(*card.root()));
}

// Three mentions, of which the second one has the name. Each must be where it was written.
TEST_P(Spoofing, NameMovesNoTextBesideIt)
{
    const auto mentionOf = [](const std::string& name) { return "<m user=\"1\">" + name + "</m>"; };
    // With the number beside it, a name of right-to-left letters would change places.
    const std::string sentence =
        mentionOf("One") + " " + mentionOf(GetParam().text) + " " + mentionOf("12");
    ClickHost host;
    const TestCard card("{\"type\": \"bubble\", \"size\": \"giga\", \"body\": "
                            + box("vertical", text(escaped(sentence), R"("size": "xxs",)")) + "}",
                        host.setUp());
    const TextItem& item = textOf(card);
    const bool isName = GetParam().text.find('<') == std::string::npos;
    ASSERT_EQ(item.MentionCount(), isName ? 3 : 2);
    if (!isName)
        return;
    const QRectF one = item.MentionRect(0);
    const QRectF name = item.MentionRect(1);
    const QRectF two = item.MentionRect(2);
    EXPECT_FALSE(one.isEmpty());
    EXPECT_EQ(one.left(), 0);
    const auto isInLineOfOne = [&](const QRectF& rect) {
        return !rect.isEmpty() && rect.top() < one.bottom();
    };
    if (isInLineOfOne(name)) {
        EXPECT_LT(one.right(), name.left());
    }
    if (isInLineOfOne(two)) {
        EXPECT_LT(std::max(one.right(), name.right()), two.left());
    }
}

// What the host gets for a click on the first item of a card with that content.
std::vector<ST_ACTION> actionsOfAClick(const std::string& content)
{
    ClickHost host;
    std::vector<ST_ACTION> actions;
    host.onAction = [&](const ST_ACTION& action) { actions.push_back(action); };
    const TestCard card(bubbleWithBody(box("vertical", content)), host.setUp());
    click(*card.root(), card.item({0, 0})->sceneBoundingRect().center());
    EXPECT_TRUE(staysInside(*card.root()));
    return actions;
}

TEST_P(Spoofing, LabelReachesTheHostAsItIs)
{
    const std::string& trick = GetParam().text;
    const std::vector<ST_ACTION> actions =
        actionsOfAClick(component("button",
                                  R"("action": {"type": "postback", "label": ")" + escaped(trick)
                                      + R"(", "data": ")" + escaped(trick) + R"("},)"));
    ASSERT_EQ(actions.size(), 1U);
    EXPECT_EQ(actions[0].label, trick);
    EXPECT_EQ(actions[0].data, trick);
}

INSTANTIATE_TEST_SUITE_P(Tricks, Spoofing, testing::ValuesIn(tricks()), RowName());

// ----- Links

class SpoofedLink : public PlixTest, public testing::WithParamInterface<Trick> { };

TEST_P(SpoofedLink, ReachesTheHostAsItIs)
{
    const std::string& link = GetParam().text;
    const std::vector<ST_ACTION> actions =
        actionsOfAClick(text("words",
                             R"("action": {"type": "uri", "uri": ")" + escaped(link)
                                 + R"(", "pcUri": ")" + escaped(link) + R"("},)"));
    ASSERT_EQ(actions.size(), 1U);
    EXPECT_EQ(actions[0].uri, link);
    EXPECT_EQ(actions[0].pcUri, link);
}

TEST_P(SpoofedLink, OfAPictureIsOnlyAskedFor)
{
    const std::string& link = GetParam().text;
    std::vector<std::string> urls;
    const TestCard card(bubbleWithBody(component("image", R"("url": ")" + escaped(link) + R"(",)")),
                        [&](PlixDataController* controller) {
                            Plix_SetDownloadCallBack(
                                controller,
                                [](PlixDataController*, const std::string& url, void* all) {
                                    static_cast<std::vector<std::string>*>(all)->push_back(url);
                                    return std::string();
                                },
                                &urls);
                        });
    EXPECT_EQ(urls, std::vector<std::string> {link});
    EXPECT_EQ(card.root()->childItems().value(0)->toGraphicsObject()->property("pictureFile"),
              QString());
}

INSTANTIATE_TEST_SUITE_P(
    Targets, SpoofedLink,
    testing::Values(
        Trick {"Script", "javascript:alert(1)"}, Trick {"ScriptInCapitals", "JaVaScRiPt:alert(1)"},
        Trick {"ScriptBehindSpaces", "  javascript:alert(1)"},
        Trick {"ScriptWithLineEnd", "java\nscript:alert(1)"}, Trick {"Data", "data:text/html,<b>"},
        Trick {"File", "file:///etc/passwd"}, Trick {"FileOfAHost", "file://host.example/share"},
        Trick {"Unc", "\\\\host.example\\share\\run.exe"}, Trick {"UncWithSlashes", "//host/share"},
        Trick {"DrivePath", "C:\\Windows\\system32\\calc.exe"},
        Trick {"Path", "../../../etc/passwd"}, Trick {"Program", "ms-settings:network"},
        Trick {"Mail", "mailto:a@b.example?body=x"},
        Trick {"UserName", "https://bank.example@evil.example/"},
        Trick {"Override", "https://evil.example/\u202egnp.exe"},
        Trick {"CyrillicHost", "https://bаnk.example/"},
        Trick {"Punycode", "https://xn--bnk-5cd.example/"},
        Trick {"FullwidthSlash", "https://bank.example／@evil.example"},
        Trick {"Percent", "https://bank.example%2F@evil.example"},
        Trick {"TwoSchemes", "https:https://evil.example"}, Trick {"NoScheme", "evil.example"},
        Trick {"Empty host", "https:///path"}, Trick {"Tab", "https://ba\tnk.example"},
        Trick {"Long", "https://bank.example/" + std::string(5000, 'a')}),
    [](const auto& trick) {
        std::string name = trick.param.name;
        std::erase(name, ' ');
        return name;
    });

// ----- Markup

struct MarkupRow {
    const char* name;
    std::string text;
    int mentions;
    const char* shown;

    friend std::ostream& operator<<(std::ostream& out, const MarkupRow& row)
    {
        return out << row.name;
    }
};

class SpoofedMarkup : public PlixTest, public testing::WithParamInterface<MarkupRow> { };

TEST_P(SpoofedMarkup, IsTextWithoutMarkup)
{
    const TestCard card(bubbleWithBody(box("vertical", text(escaped(GetParam().text)))));
    EXPECT_EQ(textOf(card).toPlainText(), plain(GetParam().text));
    EXPECT_EQ(textOf(card).MentionCount(), 0);
}

TEST_P(SpoofedMarkup, IsAMentionOnlyIfItIsWrittenExactly)
{
    ClickHost host;
    const TestCard card(bubbleWithBody(box("vertical", text(escaped(GetParam().text)))),
                        host.setUp());
    EXPECT_EQ(textOf(card).MentionCount(), GetParam().mentions);
    EXPECT_EQ(textOf(card).toPlainText(), QString::fromUtf8(GetParam().shown));
}

INSTANTIATE_TEST_SUITE_P(
    Elements, SpoofedMarkup,
    testing::Values(
        MarkupRow {"Mention", R"(<m user="1">Ann</m>)", 1, "Ann"},
        MarkupRow {"Bot", R"(<m bot="1">Ann</m>)", 1, "Ann"},
        MarkupRow {"Capitals", R"(<M user="1">Ann</M>)", 0, R"(<M user="1">Ann</M>)"},
        MarkupRow {"NoNumber", R"(<m user="">Ann</m>)", 0, R"(<m user="">Ann</m>)"},
        MarkupRow {"Words", R"(<m user="one">Ann</m>)", 0, R"(<m user="one">Ann</m>)"},
        MarkupRow {"TooLarge", R"(<m user="9223372036854775808">Ann</m>)", 0,
                   R"(<m user="9223372036854775808">Ann</m>)"},
        MarkupRow {"Plus", R"(<m user="+1">Ann</m>)", 0, R"(<m user="+1">Ann</m>)"},
        MarkupRow {"FullwidthDigit", R"(<m user="１">Ann</m>)", 0, R"(<m user="１">Ann</m>)"},
        MarkupRow {"TwoAttributes", R"(<m user="1" bot="2">Ann</m>)", 0,
                   R"(<m user="1" bot="2">Ann</m>)"},
        MarkupRow {"NoName", R"(<m user="1"></m>)", 0, R"(<m user="1"></m>)"},
        MarkupRow {"NoEnd", R"(<m user="1">Ann)", 0, R"(<m user="1">Ann)"},
        MarkupRow {"Nested", R"(<m user="1"><m user="2">Ann</m></m>)", 1, R"(<m user="1">Ann</m>)"},
        MarkupRow {"Entities", R"(&lt;m user="1"&gt;Ann&lt;/m&gt;)", 0, R"(<m user="1">Ann</m>)"},
        MarkupRow {"EntityInName", R"(<m user="1">&lt;Ann&gt;</m>)", 1, "<Ann>"},
        MarkupRow {"FullwidthBrackets", R"(＜m user="1"＞Ann＜/m＞)", 0,
                   R"(＜m user="1"＞Ann＜/m＞)"},
        MarkupRow {"ZeroWidthSpace", "<m\u200b user=\"1\">Ann</m>", 0,
                   "<m\u200b user=\"1\">Ann</m>"},
        MarkupRow {"NameOfNothing", "a<m user=\"1\">\u202e</m>b", 1, "ab"}),
    RowName());

} // namespace
} // namespace plix::test
