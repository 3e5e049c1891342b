#include "Hazards.h"

#include "layout/PlixLimits.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

std::string times(int n, const std::string& part, const std::string& between = {})
{
    std::string all;
    for (int i = 0; i < n; ++i)
        all.append(i == 0 ? "" : between).append(part);
    return all;
}

// A card of `n` equal items in one box.
std::function<std::string(int)> siblings(const std::string& item, const std::string& layout)
{
    return [=](int n) { return bubbleWithBody(box(layout, times(n, item, ","))); };
}

// A card of one wrapped text, of `n` times this part.
std::function<std::string(int)> wrappedText(const std::string& part)
{
    return [=](int n) {
        return bubbleWithBody(box("vertical", text(times(n, part), R"("wrap": true,)")));
    };
}

// The same in one line, which ends in an ellipsis.
std::function<std::string(int)> lineOfText(const std::string& part)
{
    return [=](int n) { return bubbleWithBody(box("vertical", text(times(n, part)))); };
}

// A card of `n` texts in one box, each of so many times this part.
std::function<std::string(int)> texts(const std::string& part, int parts)
{
    return siblings(text(times(parts, part), R"("wrap": true,)"), "vertical");
}

std::function<std::string(int)> buttons(const std::string& label)
{
    return siblings(
        component("button", R"("action": {"type": "uri", "label": ")" + label + R"("},)"),
        "vertical");
}

std::string nestedBoxes(int n)
{
    std::string card = text("deep", R"("wrap": true,)");
    for (int i = 0; i < n; ++i)
        card = box(i % 2 == 0 ? "vertical" : "horizontal", text("a") + "," + card);
    return bubbleWithBody(card);
}

// Each text makes its row lay itself out again.
std::string rowsOfWrappedTexts(int n)
{
    const std::string row =
        box("horizontal", text("some words", R"("wrap": true, "flex": 0,)") + "," + text("value"));
    return bubbleWithBody(box("vertical", times(n, row, ",")));
}

std::string spans(int n)
{
    const std::string span = R"({"type": "span", "text": "word ", "color": "#112233"})";
    return bubbleWithBody(
        box("vertical", text("", R"("wrap": true, "contents": [)" + times(n, span, ",") + "],")));
}

std::string comments(int n)
{
    return bubbleWithBody(times(n, "/**/ // \n") + box("vertical", text("a")));
}

std::string decimalNumbers(int n)
{
    return bubbleWithBody(box("vertical", text("a")),
                          R"("numbers": [)" + times(n, "1.5e1", ",") + "],");
}

std::string unknownKeys(int n)
{
    std::string keys;
    for (int i = 0; i < n; ++i)
        keys += "\"key" + std::to_string(i) + "\": 1, ";
    return bubbleWithBody(box("vertical", text("a"), keys));
}

std::string languages(int n)
{
    std::string all;
    for (int i = 0; i < n; ++i)
        all += (i == 0 ? "\"" : ", \"") + std::to_string(i) + R"(": "url")";
    return bubbleWithBody(component("image", R"("i18nUrls": {)" + all + "},"));
}

} // namespace

const std::vector<Hazard>& hazards()
{
    static const std::vector<Hazard> all {
        {"NestedBoxes", &nestedBoxes, kMaximumNestedBoxes},
        {"Boxes", siblings(R"({"type": "box"})", "vertical"), 500},
        {"BoxesInARow", siblings(R"({"type": "box"})", "horizontal"), 500},
        {"Separators", siblings(R"({"type": "separator"})", "vertical"), 500},
        {"Buttons", siblings(component("button"), "vertical"), 200},
        {"Texts", siblings(text("some words"), "vertical"), 200},
        {"WrappedTextsInRows", &rowsOfWrappedTexts, 50},
        {"Spans", &spans, 1000},
        {"Words", wrappedText("some words "), 1000},
        {"UnbrokenWord", wrappedText("a"), 4000},
        {"UnbrokenLine", lineOfText("a"), 4000},
        {"Chinese", wrappedText("晚上"), 4000},
        {"Thai", wrappedText("อาหารเย็น"), 4000},
        {"ThaiLine", lineOfText("อาหารเย็น"), 4000},
        {"Flags", wrappedText("\U0001F1E9\U0001F1EA"), 1000},
        {"FlagLine", lineOfText("\U0001F1E9\U0001F1EA"), 1000},
        {"JoinedEmoji", wrappedText("👩‍👩‍👧‍👦"), 200},
        {"Emoji", wrappedText("😀"), 4000},
        {"TextsOfEmoji", texts("🚀", 50), 5},
        {"TextsOfFlags", texts("\U0001F1E9\U0001F1EA", 50), 5},
        {"TextsOfWords", texts("some words ", 500), 8},
        {"LabelsOfEmoji", buttons(times(50, "🚀")), 5},
        {"LabelsOfWords", buttons(times(90, "some words ")), 20},
        {"AlternatingDirections", wrappedText("aש"), 1000},
        {"ExplicitDirections", wrappedText("\u202e\u2066"), 1000},
        {"Marks", wrappedText("\u0301"), 1000},
        {"LineEnds", wrappedText(R"(\n)"), 2000},
        {"Tabs", wrappedText(R"(a\t)"), 8000},
        {"SoftHyphens", wrappedText("a\u00ad"), 2000},
        {"Mentions", wrappedText(R"(<m user=\"1\">a</m>)"), 200, true},
        {"UnfinishedMentions", wrappedText(R"(<m user=\"1\">)"), 2000, true},
        {"EmojiElements", wrappedText(R"(<e code=\"1F600\"/>)"), 500, true},
        {"Comments", &comments, 10'000},
        {"DecimalNumbers", &decimalNumbers, 10'000},
        {"UnknownKeys", &unknownKeys, 5'000},
        {"Languages", &languages, 5'000},
    };
    return all;
}

} // namespace plix::test
