#include "PaintedCardWriter.h"

#include "support/PlixTest.h"

namespace plix::test {
namespace {

const std::vector<std::string> kColors {"",        "#FF0000",   "#00AA0080", "#0000FF40",
                                        "#FFFFFF", "#11223344", "#FFD700"};

} // namespace

PaintedCardWriter::PaintedCardWriter(unsigned seed)
    : random_(seed)
{
}

std::string PaintedCardWriter::card()
{
    return bubbleWithBody(
        writeBox(3), anyOf("size", {"mega", "kilo", "nano"}) + anyOf("direction", {"ltr", "rtl"}));
}

int PaintedCardWriter::below(int limit)
{
    return static_cast<int>(random_() % static_cast<unsigned>(limit));
}

std::string PaintedCardWriter::pick(const std::vector<std::string>& words)
{
    return words[static_cast<std::size_t>(below(static_cast<int>(words.size())))];
}

// A member with one of these values, or none for the empty one.
std::string PaintedCardWriter::anyOf(const char* key, const std::vector<std::string>& values)
{
    const std::string value = pick(values);
    return value.empty() ? value
                         : std::string("\"").append(key).append(R"(": ")").append(value) + "\",";
}

std::string PaintedCardWriter::looks()
{
    std::string members = anyOf("backgroundColor", kColors);
    members += anyOf("cornerRadius", {"", "", "xxl", "9px", "40px"});
    if (below(2) == 0)
        members += anyOf("borderColor", kColors)
            + anyOf("borderWidth", {"light", "normal", "bold", "11px"});
    return members;
}

std::string PaintedCardWriter::words()
{
    static const std::vector<std::string> list {
        "a", "fjord", "receipt", "WWWW", "Ägypten", "lily", "晚上一起吃饭", "العشاء", "release"};
    std::string all = pick(list);
    for (int i = below(6); i > 0; --i)
        all.append(1, ' ').append(pick(list));
    return all;
}

std::string PaintedCardWriter::writeText()
{
    return text(words(),
                anyOf("size", {"xxs", "md", "xxl"}) + anyOf("weight", {"", "bold"})
                    + anyOf("align", {"", "center", "end"}) + anyOf("color", kColors)
                    + pick({"", R"("wrap": true,)"}) + pick({"", R"("flex": 0,)"}));
}

std::string PaintedCardWriter::writeImage(const std::string& type)
{
    return component(type,
                     anyOf("url",
                           {"https://a.example/mountain.png", "https://a.example/sun.png",
                            "https://a.example/skyline.jpg", "https://a.example/flag.gif"})
                         + anyOf("size", {"xxs", "sm", "xl", "full"})
                         + anyOf("aspectMode", {"", "cover"})
                         + anyOf("aspectRatio", {"", "3:1", "2:3"}) + anyOf("align", {"", "end"})
                         + anyOf("backgroundColor", kColors));
}

std::string PaintedCardWriter::writeItem(int levels)
{
    const std::string type =
        pick({"box", "box", "box", "text", "text", "image", "icon", "button", "separator"});
    if (type == "box")
        return writeBox(levels);
    if (type == "text")
        return writeText();
    if (type == "separator")
        return component(type, anyOf("color", kColors) + anyOf("margin", {"", "md"}));
    if (type == "button")
        return component(type,
                         anyOf("style", {"link", "primary", "secondary", "automatic"})
                             + anyOf("height", {"sm", "md"}) + anyOf("size", {"", "xs", "5xl"})
                             + R"("action": {"label": ")" + words() + R"("},)");
    return writeImage(type);
}

std::string PaintedCardWriter::writeBox(int levels)
{
    std::string contents;
    for (int i = levels > 0 ? 1 + below(4) : 0; i > 0; --i)
        contents.append(contents.empty() ? "" : ",").append(writeItem(levels - 1));
    const std::string layout = pick({"vertical", "vertical", "horizontal", "baseline"});
    return box(layout, contents,
               looks() + anyOf("paddingAll", {"", "0px", "5px", "12px"})
                   + anyOf("spacing", {"", "sm"}) + anyOf("width", {"", "", "33%", "77px"})
                   + anyOf("height", {"", "", "", "41px"})
                   + anyOf("position", {"", "", "", "", "", "absolute"})
                   + anyOf("offsetTop", {"", "", "7px"}) + anyOf("offsetStart", {"", "", "10%"}));
}

} // namespace plix::test
