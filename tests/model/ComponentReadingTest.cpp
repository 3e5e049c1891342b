// How each component is read: its keys, and special cases.
#include "model/KeyTable.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataButton.h"
#include "model/PlixDataFiller.h"
#include "model/PlixDataIcon.h"
#include "model/PlixDataImage.h"
#include "model/PlixDataSeparator.h"
#include "model/PlixDataSpacer.h"
#include "model/PlixDataSpan.h"
#include "model/PlixDataText.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

class ComponentReading : public PlixTest { };

std::string shown(const PlixPadding& padding)
{
    return std::to_string(padding.px) + '/' + std::to_string(padding.percent);
}

KeyRow<PlixDataBox> paddingRow(const std::string& key, PlixPadding (PlixDataBox::*getter)() const,
                               int pixels)
{
    return {key,
            "-1/-1",
            '"' + std::to_string(pixels) + "px\"",
            std::to_string(pixels) + "/-1",
            "7",
            [getter](const PlixDataBox& box) { return shown((box.*getter)()); }};
}

// The text and the length of a box's size, in one text.
std::string shownSize(const std::string& text, const PlixLength& length)
{
    return text + ' ' + std::to_string(length.px) + '/' + std::to_string(length.percent);
}

template <typename Item> KeyRow<Item> urlsRow()
{
    return {"i18nUrls",   "", R"({"xx": "a", "en": "b"})",
            "en=b;xx=a;", "", [](const Item& item) { return joined(item.GetUrls()); }};
}

template <typename Item> KeyRow<Item> textsRow()
{
    return {"i18nTexts",  "",  R"({"en": "b", "ko": "a", "fr": "c"})",
            "en=b;ko=a;", "7", [](const Item& item) { return joined(item.GetTexts()); }};
}

TEST_F(ComponentReading, Box)
{
    using Box = PlixDataBox;
    expectTable(componentTable<Box>(
        "box", "ParseBox",
        std::vector<KeyRow<Box>> {
            textRow<Box>("layout", &Box::GetLayout),
            textRow<Box>("spacing", &Box::GetSpacing),
            textRow<Box>("backgroundColor", &Box::GetBackgroundColor),
            textRow<Box>("cornerRadius", &Box::GetCornerRadius),
            {"width", " -1/0", R"("12px")", "12px 12/0", "7",
             [](const Box& box) { return shownSize(box.GetWidth(), box.GetWidthLength()); }},
            {"height", " -1/0", R"("34%")", "34% 0/34", "7",
             [](const Box& box) { return shownSize(box.GetHeight(), box.GetHeightLength()); }},
            textRow<Box>("borderColor", &Box::GetBorderColor),
            textRow<Box>("borderWidth", &Box::GetBorderWidth),
            paddingRow("paddingAll", &Box::GetPaddingAll, 1),
            paddingRow("paddingTop", &Box::GetPaddingTop, 2),
            paddingRow("paddingBottom", &Box::GetPaddingBottom, 3),
            paddingRow("paddingStart", &Box::GetPaddingStart, 4),
            paddingRow("paddingEnd", &Box::GetPaddingEnd, 5)}
            + commonRows<Box>()
            + std::vector<KeyRow<Box>> {
                actionRow<Box>(),
                {"contents", "0", R"([{"type": "text"}, {"type": "filler"}])", "2", "7",
                 [](const Box& box) {
                     return std::to_string(box.GetContainer()->GetChildCount());
                 }}}));
}

TEST_F(ComponentReading, Text)
{
    using Text = PlixDataText;
    expectTable(componentTable<Text>(
        "text", "ParseText",
        std::vector<KeyRow<Text>> {
            textRow<Text>("text", &Text::GetText),
            textRow<Text>("weight", &Text::GetWeight),
            textRow<Text>("size", &Text::GetSize),
            textRow<Text>("color", &Text::GetColor),
            textRow<Text>("style", &Text::GetStyle),
            textRow<Text>("decoration", &Text::GetDecoration),
            textRow<Text>("align", &Text::GetAlign),
            textRow<Text>("gravity", &Text::GetGravity),
            {"wrap", "0", "true", "1", "",
             [](const Text& text) { return std::to_string(text.GetWrap()); }},
            {"maxLines", "0", "5", "5", R"("3")",
             [](const Text& text) { return std::to_string(text.GetMaxLines()); }},
            textsRow<Text>()}
            + commonRows<Text>()
            + std::vector<KeyRow<Text>> {
                {"contents", "0", R"([{"type": "span"}])", "1", "7",
                 [](const Text& text) { return std::to_string(text.GetSpans().size()); }},
                actionRow<Text>()}));
}

TEST_F(ComponentReading, Span)
{
    using Span = PlixDataSpan;
    const KeyTable<Span> table {
        "ParseText",
        {textRow<Span>("text", &Span::GetText), textRow<Span>("size", &Span::GetSize),
         textRow<Span>("color", &Span::GetColor), textRow<Span>("weight", &Span::GetWeight),
         textRow<Span>("style", &Span::GetStyle), textRow<Span>("decoration", &Span::GetDecoration),
         textsRow<Span>()},
        [](const std::string& members) {
            const auto text = readComponent<PlixDataText>(R"({"type": "text", "contents": [{)"
                                                          + members + R"("type": "span"}]})");
            return std::make_shared<const Span>(text->GetSpans().at(0));
        }};
    expectTable(table);
}

TEST_F(ComponentReading, Image)
{
    using Image = PlixDataImage;
    expectTable(componentTable<Image>(
        "image", "ParseImage",
        std::vector<KeyRow<Image>> {
            textRow<Image>("url", &Image::GetUrl), textRow<Image>("size", &Image::GetSize),
            textRow<Image>("aspectRatio", &Image::GetAspectRatio, "1:1"),
            textRow<Image>("aspectMode", &Image::GetAspectMode, "fit"),
            textRow<Image>("align", &Image::GetAlign),
            textRow<Image>("gravity", &Image::GetGravity),
            textRow<Image>("backgroundColor", &Image::GetBackgroundColor), urlsRow<Image>()}
            + commonRows<Image>() + std::vector<KeyRow<Image>> {actionRow<Image>()}));
}

TEST_F(ComponentReading, Icon)
{
    using Icon = PlixDataIcon;
    expectTable(componentTable<Icon>(
        "icon", "ParseIcon",
        std::vector<KeyRow<Icon>> {
            textRow<Icon>("size", &Icon::GetSize), textRow<Icon>("url", &Icon::GetUrl),
            textRow<Icon>("aspectRatio", &Icon::GetAspectRatio), urlsRow<Icon>()}
            + commonRows<Icon>()));
}

TEST_F(ComponentReading, Button)
{
    using Button = PlixDataButton;
    expectTable(componentTable<Button>(
        "button", "ParseButton",
        std::vector<KeyRow<Button>> {textRow<Button>("style", &Button::GetStyle),
                                     textRow<Button>("height", &Button::GetHeight, "50"),
                                     textRow<Button>("color", &Button::GetColor),
                                     textRow<Button>("gravity", &Button::GetGravity),
                                     textRow<Button>("size", &Button::GetSize, "md")}
            + commonRows<Button>() + std::vector<KeyRow<Button>> {actionRow<Button>()}));
}

TEST_F(ComponentReading, Spacer)
{
    expectTable(componentTable<PlixDataSpacer>(
        "spacer", "ParseSpacer", {textRow<PlixDataSpacer>("size", &PlixDataSpacer::GetSize)}));
}

TEST_F(ComponentReading, Filler)
{
    expectTable(componentTable<PlixDataFiller>(
        "filler", "ParseFiller", {{"flex", "1", "3", "3", R"("3")", [](const PlixDataFiller& item) {
                                       return std::to_string(item.GetGrow());
                                   }}}));
}

TEST_F(ComponentReading, Separator)
{
    using Separator = PlixDataSeparator;
    expectTable(componentTable<Separator>("separator", "ParseSeparator",
                                          {textRow<Separator>("margin", &Separator::GetMargin),
                                           textRow<Separator>("color", &Separator::GetColor)}));
}

// Spacer, filler and separator have no position and no action: these keys are
// ignored, even with wrong values.
TEST_F(ComponentReading, PlainItemsIgnoreTheCommonKeys)
{
    const std::string common = R"("position": 5, "offsetStart": 5, "offsetEnd": 5, "offsetTop": 5,
                                  "offsetBottom": 5, "action": {"label": "Go"}})";
    const auto spacer =
        readComponent<PlixDataSpacer>(R"({"type": "spacer", "margin": 5, "flex": "x", )" + common);
    EXPECT_EQ(spacer->GetAction(), nullptr);
    const auto filler =
        readComponent<PlixDataFiller>(R"({"type": "filler", "margin": 5, )" + common);
    EXPECT_EQ(filler->GetAction(), nullptr);
    const auto separator =
        readComponent<PlixDataSeparator>(R"({"type": "separator", "flex": "x", )" + common);
    EXPECT_EQ(separator->GetAction(), nullptr);
}

TEST_F(ComponentReading, IconsHaveNoAction)
{
    const auto icon = readComponent<PlixDataIcon>(R"({"type": "icon", "action": {"label": "Go"}})");
    EXPECT_EQ(icon->GetAction(), nullptr);
}

TEST_F(ComponentReading, KeysAreCaseSensitiveAndUnknownOnesIgnored)
{
    const auto text = readComponent<PlixDataText>(
        R"({"type": "text", "Text": "no", "TEXT": 5, "nonsense": {"a": [1]}, "text": "yes"})");
    EXPECT_EQ(text->GetText(), "yes");
}

// Any text of nine characters counts as a colour with its alpha at the end.
TEST_F(ComponentReading, AlphaMovesToTheFrontInSomeColours)
{
    const struct {
        const char* behaviour;
        const char* written;
        const char* stored;
    } rows[] = {
        {"alpha at the end", "#11223344", "#44112233"},
        {"no alpha", "#112233", "#112233"},
        {"nine characters that are not digits", "#uvwxyzAB", "#ABuvwxyz"},
        {"nine characters without a hash", "abcdefghi", "#hibcdefg"},
        {"eight characters", "#1122334", "#1122334"},
        {"ten characters", "#112233445", "#112233445"},
        {"a colour name", "lightblue", "#ueightbl"},
        {"nothing", "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        const auto colour = [&](const std::string& key) {
            return '"' + key + "\": \"" + row.written + "\", ";
        };
        const auto box = readComponent<PlixDataBox>('{' + colour("backgroundColor")
                                                    + colour("borderColor") + R"("type": "box"})");
        EXPECT_EQ(box->GetBackgroundColor(), row.stored);
        EXPECT_EQ(box->GetBorderColor(), row.stored);
        const auto text =
            readComponent<PlixDataText>('{' + colour("color") + R"("contents": [{)"
                                        + colour("color") + R"("type": "span"}], "type": "text"})");
        EXPECT_EQ(text->GetColor(), row.stored);
        EXPECT_EQ(text->GetSpans().at(0).GetColor(), row.stored);
    }
}

TEST_F(ComponentReading, OtherColoursStayAsWritten)
{
    const std::string colour = "#11223344";
    EXPECT_EQ(readComponent<PlixDataImage>(R"({"type": "image", "backgroundColor": "#11223344"})")
                  ->GetBackgroundColor(),
              colour);
    EXPECT_EQ(
        readComponent<PlixDataButton>(R"({"type": "button", "color": "#11223344"})")->GetColor(),
        colour);
    EXPECT_EQ(readComponent<PlixDataSeparator>(R"({"type": "separator", "color": "#11223344"})")
                  ->GetColor(),
              colour);
}

TEST_F(ComponentReading, AnEmptyEndPaddingResetsTheStartPadding)
{
    const auto box =
        readComponent<PlixDataBox>(R"({"type": "box", "paddingStart": "lg", "paddingEnd": ""})");
    EXPECT_EQ(box->GetPaddingStart().px, -1);
    EXPECT_EQ(box->GetPaddingEnd().px, -1);
}

TEST_F(ComponentReading, ATextReadsExactlySixLanguages)
{
    const std::string texts = R"("i18nTexts": {"ko": "1", "ja": "2", "en": "3", "zh-CN": "4",
        "zh-TW": "5", "default": "6", "fr": "7", "EN": "8", "zh": 9, "th": {}})";
    const std::string expected = "default=6;en=3;ja=2;ko=1;zh-CN=4;zh-TW=5;";
    const auto text = readComponent<PlixDataText>(
        R"({"type": "text", "contents": [{"type": "span", )" + texts + "}], " + texts + "}");
    EXPECT_EQ(joined(text->GetTexts()), expected);
    EXPECT_EQ(joined(text->GetSpans().at(0).GetTexts()), expected);
}

TEST_F(ComponentReading, LanguagesAreReadInOrder)
{
    const std::vector<std::string> codes = {"ko", "ja", "en", "zh-CN", "zh-TW", "default"};
    for (std::size_t broken = 0; broken < codes.size(); ++broken) {
        SCOPED_TRACE(codes[broken]);
        std::string members;
        PlixLanguageMap before;
        for (std::size_t i = 0; i < codes.size(); ++i) {
            members += (i ? ", \"" : "\"") + codes[i] + (i == broken ? "\": 5" : "\": \"x\"");
            if (i < broken)
                before.texts[codes[i]] = "x";
        }
        const auto text = readComponent<PlixDataText>(
            R"({"type": "text", "margin": "md", "i18nTexts": {)" + members + "}}");
        expectOneLogLine("ParseText", {'"' + codes[broken] + '"'});
        EXPECT_EQ(joined(text->GetTexts()), joined(before));
        EXPECT_EQ(text->GetMargin(), "") << "read after the text has failed";
    }
}

TEST_F(ComponentReading, ATextReadsOnlySpans)
{
    const auto text = readComponent<PlixDataText>(R"({"type": "text", "contents": [
        {"type": "span", "text": "a"}, {"type": "text", "text": "b"}, {"type": "Span"}, "span",
        {"text": "no type"}, {"type": 5}, null, [], {"type": "span", "text": "c"}]})");
    ASSERT_EQ(text->GetSpans().size(), 2U);
    EXPECT_EQ(text->GetSpans()[0].GetText(), "a");
    EXPECT_EQ(text->GetSpans()[1].GetText(), "c");
}

TEST_F(ComponentReading, ABrokenSpanStaysAndFailsTheText)
{
    const auto text = readComponent<PlixDataText>(R"({"type": "text", "text": "t", "contents": [
        {"type": "span", "text": "a", "size": 5, "color": "#112233"},
        {"type": "span", "text": "b"}], "action": {"label": "Go"}})");
    expectOneLogLine("ParseText", {"\"size\"", "5"});
    ASSERT_EQ(text->GetSpans().size(), 1U);
    EXPECT_EQ(text->GetSpans()[0].GetText(), "a");
    EXPECT_EQ(text->GetSpans()[0].GetColor(), "");
    EXPECT_EQ(text->GetAction(), nullptr);
}

TEST_F(ComponentReading, WrapAcceptsAnyValue)
{
    const struct {
        const char* json;
        bool expected;
    } rows[] = {{"true", true}, {"false", false}, {"1", true},     {"0", false},
                {"0.0", false}, {"-0.5", true},   {"\"\"", false}, {"\"false\"", true},
                {"[]", false},  {"[0]", true},    {"{}", false},   {R"({"a": 0})", true},
                {"null", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.json);
        const auto text = readComponent<PlixDataText>(std::string(R"({"type": "text", "wrap": )")
                                                      + row.json + "}");
        EXPECT_EQ(text->GetWrap(), row.expected);
    }
}

TEST_F(ComponentReading, BooleansAndNullAreReadAsTexts)
{
    EXPECT_EQ(readComponent<PlixDataText>(R"({"type": "text", "text": true})")->GetText(), "true");
    EXPECT_EQ(readComponent<PlixDataText>(R"({"type": "text", "text": false})")->GetText(),
              "false");
    EXPECT_EQ(readComponent<PlixDataText>(R"({"type": "text", "text": null})")->GetText(), "");
}

TEST_F(ComponentReading, TextIsNotChanged)
{
    const std::string text = "caf\xC3\xA9 \xF0\x9F\x98\x80 \xED\x95\x9C";
    EXPECT_EQ(
        readComponent<PlixDataText>(R"({"type": "text", "text": ")" + text + "\"}")->GetText(),
        text);
    EXPECT_EQ(readComponent<PlixDataText>(R"({"type": "text", "text": "\u00e9"})")->GetText(),
              "\xC3\xA9");
}

TEST_F(ComponentReading, NullMapsAndContentsCountAsNotGiven)
{
    const auto text = readComponent<PlixDataText>(
        R"({"type": "text", "i18nTexts": null, "contents": null, "margin": "md"})");
    EXPECT_EQ(text->GetSpans().size(), 0U);
    EXPECT_EQ(joined(text->GetTexts()), "");
    EXPECT_EQ(text->GetMargin(), "md");
    const auto image = readComponent<PlixDataImage>(R"({"type": "image", "i18nUrls": null})");
    EXPECT_EQ(joined(image->GetUrls()), "");
    const auto box = readComponent<PlixDataBox>(R"({"type": "box", "contents": null})");
    EXPECT_EQ(box->GetContainer()->GetChildCount(), 0);
}

TEST_F(ComponentReading, UrlsKeepTheMembersBeforeABrokenOne)
{
    const auto image = readComponent<PlixDataImage>(
        R"({"type": "image", "i18nUrls": {"en": "a", "ja": 5, "ko": "b"}, "margin": "md"})");
    expectOneLogLine("ParseMultiLang", {"\"ja\"", "5", "a string"});
    EXPECT_EQ(joined(image->GetUrls()), "en=a;");
    EXPECT_EQ(image->GetMargin(), "md");
    const auto icon = readComponent<PlixDataIcon>(
        R"({"type": "icon", "i18nUrls": {"en": "a", "ja": []}, "margin": "md"})");
    expectOneLogLine("ParseMultiLang", {"\"ja\"", "an array"});
    EXPECT_EQ(joined(icon->GetUrls()), "en=a;");
    EXPECT_EQ(icon->GetMargin(), "md");
}

} // namespace
} // namespace plix::test
