#include "GeneratedCards.h"

namespace bench {
namespace {

// 50 characters.
const std::string sentence = "Dinner is ready at seven, please bring some juice.";

std::string text(const std::string& shown, const std::string& keys = {})
{
    return R"({"type": "text", "text": ")" + shown + '"' + keys + '}';
}

std::string repeated(const std::string& element, int count)
{
    std::string list;
    for (int i = 0; i < count; ++i)
        list += (i > 0 ? ", " : "") + element;
    return list;
}

std::string box(const std::string& layout, const std::string& contents,
                const std::string& keys = {})
{
    return R"({"type": "box", "layout": ")" + layout + '"' + keys + R"(, "contents": [)" + contents
        + "]}";
}

std::string bubble(const std::string& size, const std::string& body)
{
    return R"({"type": "bubble", "size": ")" + size + R"(", "body": )" + body + '}';
}

std::string column(const std::string& contents)
{
    return bubble("mega", box("vertical", contents));
}

Card texts(int count)
{
    return {"texts/" + std::to_string(count),
            column(repeated(text(sentence, R"(, "wrap": true)"), count))};
}

Card boxes(int count)
{
    const std::string keys = R"(, "height": "6px", "margin": "xs", "backgroundColor": "#4477AA")";
    return {"boxes/" + std::to_string(count), column(repeated(box("vertical", {}, keys), count))};
}

// A row is five elements: the box and four texts.
Card rows(int count)
{
    const std::string row = box("horizontal", repeated(text("Dinner"), 4));
    return {"rows/" + std::to_string(count), column(repeated(row, count / 5))};
}

// Rows and columns in turn, the body among them.
Card nestedBoxes(int levels)
{
    std::string content = text("Dinner");
    for (int level = levels; level > 0; --level)
        content = box(level % 2 == 1 ? "vertical" : "horizontal", content);
    return {"nested/" + std::to_string(levels), bubble("mega", content)};
}

} // namespace

Card sixteenTexts()
{
    return {"a",
            bubble("kilo", box("vertical", repeated(text(sentence, R"(, "wrap": true)"), 16)))};
}

std::vector<Card> generatedCards()
{
    constexpr int mostNestedBoxes = 24;
    std::vector<Card> cards;
    for (const auto make : {texts, boxes, rows}) {
        for (const int count : {10, 100, 1000})
            cards.push_back(make(count));
    }
    cards.push_back(nestedBoxes(mostNestedBoxes));
    return cards;
}

} // namespace bench
