#include "CostlyCards.h"

#include "support/PlixTest.h"

#include <random>

namespace plix::test {
namespace {

constexpr std::size_t kLargest = 64 * 1024;

using Words = std::vector<std::string>;

struct Named {
    std::string name;
    std::string json;
};

const Words kTurns[] = {{"vertical", "horizontal"},
                        {"horizontal", "vertical"},
                        {"vertical", "baseline"},
                        {"vertical", "vertical", "horizontal", "horizontal"}};

const Named kNeighbours[] = {{"Lines", R"({"type": "text", "text": "a"})"},
                             {"Wrapped", R"({"type": "text", "text": "two words", "wrap": true})"}};

const Named kWidths[] = {{"", ""},
                         {"Rigid", R"("flex": 0, )"},
                         {"Shares", R"("width": "97%", )"},
                         {"Padded", R"("paddingAll": "1px", "paddingStart": "1%", )"}};

const char kAbsolute[] = R"("position": "absolute", "offsetTop": "3%", "offsetStart": "1px", )";

enum class Side { Before, After, Both };

CostlyLevel levelOf(const std::string& layout, const std::string& members,
                    const std::string& neighbour, Side side)
{
    CostlyLevel level {layout, members, {}, {}};
    if (side != Side::After)
        level.before.push_back(neighbour);
    if (side != Side::Before)
        level.after.push_back(neighbour);
    return level;
}

std::string repeated(const Words& components, int times)
{
    std::string all;
    for (int i = 0; i < times; ++i) {
        for (const std::string& component : components)
            all.append(component).append(1, ',');
    }
    return all;
}

std::string inBox(const CostlyLevel& level, const std::string& inner, int width)
{
    std::string contents =
        repeated(level.before, width) + inner + "," + repeated(level.after, width);
    contents.pop_back();
    return box(level.layout, contents, level.members);
}

// Found by a search for the costliest cards.
std::vector<CostlyCard> foundCards()
{
    const std::string line = text("a");
    const std::string wrapped = text("a", R"("wrap": true, "maxLines": 2, )");
    const std::string filler = component("filler");
    const std::string image = component("image");
    const std::string separator = component("separator");
    const std::string beside = text("words that fill more than one line of most boxes", kAbsolute);
    return {
        {"BaselineWithImages",
         {{"vertical", R"("flex": 3, )", {wrapped, separator}, {}},
          {"baseline", "", {line, image}, {}}}},
        {"PaddedWithFillers",
         {{"horizontal", R"("offsetStart": "58%", )", {wrapped}, {filler, line, beside, wrapped}},
          {"vertical", R"("paddingAll": "4px", "paddingStart": "2%", )", {}, {beside}},
          {"horizontal", "", {}, {filler, wrapped, line, beside}},
          {"vertical", R"("paddingAll": "4px", )", {}, {beside, separator, wrapped}}}},
        {"SpacedWithImages",
         {{"horizontal", "", {}, {line}},
          {"vertical", R"("spacing": "7px", )", {}, {line, image, line, wrapped}}}},
    };
}

class RandomLevels {
public:
    explicit RandomLevels(unsigned seed)
        : random_(seed)
    {
    }

    bool oneIn(unsigned count) { return random_() % count == 0; }

    std::vector<CostlyLevel> levels()
    {
        std::vector<CostlyLevel> all;
        for (auto i = random_() % 5; i < 5; ++i)
            all.push_back(
                {oneOf({"vertical", "horizontal", "baseline"}), boxMembers(), leaves(), leaves()});
        return all;
    }

private:
    std::string oneOf(const Words& words) { return words[random_() % words.size()]; }

    std::string maybe(const std::string& key, const Words& values)
    {
        return oneIn(4) ? "\"" + key + "\": " + oneOf(values) + ", " : std::string();
    }

    std::string boxMembers()
    {
        const Words lengths {R"("50%")", R"("93%")", R"("100%")", R"("3px")", R"("120px")"};
        return maybe("flex", {"0", "1", "2"}) + maybe("width", lengths) + maybe("height", lengths)
            + maybe("paddingAll", lengths) + maybe("paddingStart", lengths)
            + maybe("spacing", {R"("sm")"}) + maybe("margin", {R"("3px")"})
            + (oneIn(8) ? kAbsolute : "");
    }

    std::string leaf()
    {
        const std::string members = maybe("flex", {"0", "1", "3"})
            + maybe("gravity", {R"("center")", R"("bottom")"}) + maybe("wrap", {"true"})
            + maybe("size", {R"("xxs")", R"("full")"}) + maybe("position", {R"("absolute")"});
        const std::string type = oneOf({"text", "text", "text", "image", "button", "filler"});
        if (type != "text")
            return component(type, members);
        return text(oneOf({"a", "two words", "words that fill more than one line of most boxes"}),
                    members);
    }

    Words leaves()
    {
        Words all;
        for (auto i = random_() % 3; i > 0; --i)
            all.push_back(leaf());
        return all;
    }

    std::mt19937 random_;
};

} // namespace

std::string CostlyCard::json(int depth, int width) const
{
    std::string card = text("deep", R"("wrap": true, )");
    for (int i = depth - 1; i >= 0; --i)
        card = inBox(levels[static_cast<std::size_t>(i) % levels.size()], card, width);
    return bubbleWithBody(card, rightToLeft ? R"("direction": "rtl", )" : "");
}

std::string CostlyCard::largestJson(int depth) const
{
    std::string largest = json(depth);
    for (int width = 2; width < 100; ++width) {
        std::string wider = json(depth, width);
        if (wider.size() > kLargest)
            break;
        largest = std::move(wider);
    }
    return largest;
}

std::vector<CostlyCard> costlyCards()
{
    std::vector<CostlyCard> cards = foundCards();
    for (const Words& turns : kTurns)
        for (const Named& neighbour : kNeighbours)
            for (const Named& width : kWidths)
                for (const Side side : {Side::Before, Side::After, Side::Both})
                    for (const bool isAbsolute : {false, true}) {
                        CostlyCard card {turns[0] + turns[1] + std::to_string(turns.size())
                                             + neighbour.name + width.name
                                             + std::to_string(static_cast<int>(side))
                                             + (isAbsolute ? "Absolute" : ""),
                                         {},
                                         cards.size() % 2 == 1};
                        for (const std::string& layout : turns)
                            card.levels.push_back(
                                levelOf(layout, width.json, neighbour.json, side));
                        if (isAbsolute)
                            card.levels.back().members += kAbsolute;
                        cards.push_back(card);
                    }
    return cards;
}

CostlyCard randomCostlyCard(unsigned seed)
{
    RandomLevels random(seed);
    return {"Random" + std::to_string(seed), random.levels(), random.oneIn(3)};
}

} // namespace plix::test
