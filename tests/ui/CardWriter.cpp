#include "CardWriter.h"

#include "support/PlixTest.h"

namespace plix::test {

CardWriter::CardWriter(unsigned seed, Room room)
    : random_(seed)
    , room_(room)
{
}

std::string CardWriter::card()
{
    return bubbleWithBody(writeBox("vertical", room_ == Room::Any ? 3 : 2),
                          R"("size": ")" + pick({"giga", "autogiga", "mega", "kilo"}) + "\","
                              + pick({"", R"("direction": "rtl",)"}));
}

int CardWriter::below(int limit)
{
    return static_cast<int>(random_() % static_cast<unsigned>(limit));
}

std::string CardWriter::pick(const std::vector<std::string>& words)
{
    return words[static_cast<std::size_t>(below(static_cast<int>(words.size())))];
}

std::string CardWriter::words(int maximum)
{
    static const std::vector<std::string> list {"a",    "the",    "card", "receipt", "wide",
                                                "WWWW", "iiii",   "lily", "12:30",   "晚上一起吃饭",
                                                "저녁", "العشاء", "הערב", "😀",       "fjord"};
    std::string all = pick(list);
    for (int i = below(maximum); i > 0; --i)
        all.append(1, ' ').append(pick(list));
    return all;
}

std::string CardWriter::writeText(const std::string& layout)
{
    std::string more = R"("size": ")" + pick({"xxs", "xs", "sm", "md", "lg"}) + "\",";
    more += pick({R"("wrap": true,)", R"("wrap": true,)", R"("wrap": true,)", ""});
    more += pick({"", R"("align": "center",)", R"("align": "end",)"});
    if (layout != "baseline")
        more += pick({"", "", R"("gravity": "center",)", R"("gravity": "bottom",)"});
    more += pick({"", "", R"("maxLines": 2,)", R"("weight": "bold",)", R"("margin": "md",)"});
    if (layout != "vertical")
        more += pick({"", R"("flex": 1,)", R"("flex": 2,)", R"("flex": 3,)"});
    if (room_ == Room::Any && below(3) == 0)
        more += pick({R"("flex": 0,)", R"("flex": 1,)"});
    if (below(5) == 0) {
        const std::string spans = component("span", R"("text": ")" + words(5) + "\",") + ","
            + component("span", R"("size": "xl", "text": ")" + words(5) + "\",");
        return component("text", R"("contents": [)" + spans + "]," + more);
    }
    return text(words(12), more);
}

std::string CardWriter::writeBox(const std::string& layout, int levels)
{
    std::string contents;
    const int count = 1 + below(layout == "vertical" ? 4 : 2);
    for (int i = 0; i < count; ++i) {
        contents += i ? "," : "";
        // In a baseline row there is room for texts only.
        const bool mayHoldBoxes = layout != "baseline" || room_ == Room::Any;
        const bool isBox = levels > 0 && mayHoldBoxes && below(2) == 0;
        contents += isBox ? writeChildBox(layout, levels - 1) : writeText(layout);
    }
    return box(layout, contents, pick({"", R"("spacing": "sm",)", R"("spacing": "md",)"}));
}

std::string CardWriter::writeChildBox(const std::string& parent, int levels)
{
    std::string json = writeBox(pick({"vertical", "horizontal", "baseline"}), levels);
    std::string more = pick({"", R"("paddingAll": "5px",)", R"("paddingStart": "8px",)",
                             R"("borderWidth": "light", "borderColor": "#FF0000",)"});
    if (parent == "vertical")
        more += pick({"", "", R"("width": "70%",)", R"("width": "77px",)"});
    else
        more += pick({R"("flex": 1, "width": "0",)", R"("flex": 2, "width": "0",)",
                      R"("width": "40%", "flex": 0,)"});
    if (room_ == Room::Any && below(2) == 0)
        more = pick({"", "", R"("flex": 0,)", R"("flex": 2,)", R"("paddingAll": "lg",)"});
    return json.insert(1, more);
}

} // namespace plix::test
