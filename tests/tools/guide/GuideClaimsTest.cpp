// What the tables of docs/cards.md say about missing and wrong values is what the library
// draws.
#include "CardFile.h"
#include "CardHost.h"
#include "CardPainter.h"
#include "LayoutDump.h"

#include "support/FormatPlaces.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <map>
#include <optional>

namespace plix::test {
namespace {

struct Place {
    FormatPlace card;
    std::vector<std::pair<std::string, std::string>> members;
};

// What a component needs, so that its keys are seen.
const std::map<std::string, std::vector<std::pair<std::string, std::string>>> kMembers {
    {"text", {{"text", "\"Some words that are long enough for several lines, in any box\""}}},
    {"box",
     {{"layout", "\"horizontal\""},
      {"backgroundColor", "\"#FFFFFF\""},
      {"borderColor", "\"#FF0000\""},
      {"borderWidth", "\"4px\""},
      {"contents", R"([{"type": "text", "text": "one"}, {"type": "text", "text": "two"}])"}}},
    {"image", {{"url", "\"https://example.com/img/mountain.png\""}}},
    {"icon", {{"url", "\"https://example.com/img/star_full.png\""}}},
    {"button", {{"action", R"({"type": "uri", "label": "A label"})"}}},
    {"span", {{"text", "\"Some words\""}}},
};

std::vector<Place> componentPlaces(const std::string& layout)
{
    std::vector<Place> places;
    for (const PlixFormatComponent& format : ComponentFormats()) {
        FormatPlace place {&format, "",
                           R"({"type": "bubble", "body": {"type": "box", "layout": ")" + layout
                               + R"(", "height": "160px", "contents": [)"
                                 R"({"type": "text", "text": "before", "flex": 0}, {)",
                           "\"type\": \"" + std::string(format.type)
                               + R"("}, {"type": "text", "text": "after", "flex": 0}]}})"};
        const auto members = kMembers.find(std::string(format.type));
        places.push_back(
            {place, members == kMembers.end() ? decltype(Place::members) {} : members->second});
    }
    return places;
}

std::vector<Place> places()
{
    std::vector<Place> all = componentPlaces("vertical");
    for (const Place& place : componentPlaces("horizontal"))
        all.push_back(place);
    const std::string body = R"("type": "bubble", "body": {"type": "box", "layout": "vertical", )"
                             R"("contents": [{"type": "text", "text": "body"}]}})";
    all.push_back({{&BubbleFormat(), "", "{", body}, {}});
    all.push_back(
        {{&PartFormat(PlixFormatPart::Span), "",
          R"({"type": "bubble", "body": {"type": "text", "contents": [{)", R"("type": "span"}]}})"},
         kMembers.at("span")});
    all.push_back({{&PartFormat(PlixFormatPart::ZoneStyle), "",
                    R"({"header": {"type": "text", "text": "header"}, "styles": {"body": {)",
                    R"("x": 0}}, )" + body},
                   {{"separator", "true"}}});
    return all;
}

// The card with this value for the key, or without the key.
std::string cardOf(const Place& place, std::string_view key,
                   const std::optional<std::string>& value)
{
    std::string card = place.card.before;
    if (value)
        card += '"' + std::string(key) + "\": " + *value + ", ";
    for (const auto& [name, member] : place.members) {
        if (name != key)
            card += '"' + name + "\": " + member + ", ";
    }
    return card + place.card.after;
}

QImage draw(const std::string& json)
{
    const tool::CardFile file(QStringLiteral("card.json"), QByteArray::fromStdString(json));
    tool::CardOptions options;
    options.images = QStringLiteral(PLIX_IMAGES);
    tool::CardHost host(file, options);
    return tool::paintCard(host.scene(), host.card(), 1).image;
}

// Two values that count as the same. A missing value is a missing key.
struct SameValues {
    std::string wrong;
    std::optional<std::string> same;
};

std::vector<SameValues> wrongTexts(const PlixFormatKey& key)
{
    switch (key.rule) {
    case PlixValueRule::Word:
        if (!key.unknownWord.empty())
            return {};
        return {{"\"qqq\"", std::nullopt}};
    case PlixValueRule::Length:
    case PlixValueRule::LengthOrPercent:
        return {{"\"1.5em\"", "\"0px\""}, {"\"12.5px\"", "\"0px\""}};
    case PlixValueRule::Color:
    case PlixValueRule::ColorAlphaLast:
        return {{"\"qqq\"", "\"#000000\""}};
    case PlixValueRule::Ratio:
        return {{"\"16/9\"", "\"1:1\""}};
    case PlixValueRule::Text:
    case PlixValueRule::Url:
        break;
    }
    return {};
}

std::vector<SameValues> wrongValues(const PlixFormatKey& key)
{
    switch (key.type) {
    case PlixJsonType::String:
        return wrongTexts(key);
    case PlixJsonType::Integer:
        return {{"1.5", "1"}, {"-1", "0"}};
    case PlixJsonType::Boolean:
        return {{"\"no\"", "true"}};
    case PlixJsonType::Object:
    case PlixJsonType::Array:
        break;
    }
    return {};
}

template <typename Function> void forEachPlacedKey(const Function& function)
{
    for (const Place& place : places()) {
        for (const PlixFormatKey& key : place.card.format->keys) {
            SCOPED_TRACE(place.card.before + "..." + std::string(key.name));
            function(place, key);
        }
    }
}

TEST(GuideClaims, WrongValuesCountAsTheTableSays)
{
    forEachPlacedKey([](const Place& place, const PlixFormatKey& key) {
        for (const SameValues& row : wrongValues(key)) {
            // Only a filler of 0 has a length of its own.
            if (place.card.format->type == "filler" && row.same == "0")
                continue;
            EXPECT_TRUE(draw(cardOf(place, key.name, row.wrong))
                        == draw(cardOf(place, key.name, row.same)))
                << row.wrong;
        }
    });
}

TEST(GuideClaims, AnUnknownStyleOfAButtonIsABlackLabel)
{
    const std::string before = R"({"type": "bubble", "body": {"type": "button", "style": ")";
    const std::string after = R"(", "action": {"type": "uri", "label": "A label"}}})";
    const QImage picture = draw(before + "qqq" + after);
    EXPECT_TRUE(picture == draw(before + R"(link", "color": "#000000)" + after));
    EXPECT_FALSE(picture == draw(before + "link" + after));
}

TEST(GuideClaims, AMissingKeyIsItsDefault)
{
    forEachPlacedKey([](const Place& place, const PlixFormatKey& key) {
        if (key.fallback.empty())
            return;
        EXPECT_TRUE(draw(cardOf(place, key.name, std::string(key.fallback)))
                    == draw(cardOf(place, key.name, std::nullopt)));
    });
}

QJsonObject layOut(const std::string& json)
{
    const tool::CardFile file(QStringLiteral("card.json"), QByteArray::fromStdString(json));
    const tool::CardHost host(file, tool::CardOptions());
    return QJsonDocument::fromJson(tool::dumpLayout(host.card())).object();
}

QJsonArray childrenOf(const QJsonValue& item)
{
    return item.toObject().value(QStringLiteral("children")).toArray();
}

double numberOf(const QJsonValue& item, const char* key)
{
    return item.toObject().value(QLatin1String(key)).toDouble();
}

// The padding of a box at its upper end, and at its lower end, by its only item.
std::pair<double, double> paddingsOf(const QJsonValue& box)
{
    const QJsonValue item = childrenOf(box).at(0);
    const double top = numberOf(item, "y");
    return {top, numberOf(box, "height") - top - numberOf(item, "height")};
}

std::vector<double> widthsOf(const QJsonArray& items)
{
    std::vector<double> widths;
    for (const QJsonValue& item : items)
        widths.push_back(numberOf(item, "width"));
    return widths;
}

TEST(GuideClaims, ZonesHaveThesePaddings)
{
    const struct {
        const char* size;
        double padding;
        double lowerEnd;
    } rows[] = {{"kilo", 13, 3},  {"micro", 10, 0}, {"nano", 10, 0},
                {"giga", 20, 10}, {"mega", 20, 10}, {"autogiga", 20, 20}};
    const std::string box =
        R"({"type": "box", "layout": "vertical", "contents": [{"type": "text", "text": "a"}]})";
    for (const auto& row : rows) {
        SCOPED_TRACE(row.size);
        const QJsonArray zones = childrenOf(
            layOut(R"({"type": "bubble", "size": ")" + std::string(row.size) + R"(", "header": )"
                   + box + R"(, "body": )" + box + R"(, "footer": )" + box + "}"));
        EXPECT_EQ(paddingsOf(zones.at(0)), std::make_pair(row.padding, row.padding));
        EXPECT_EQ(paddingsOf(zones.at(1)), std::make_pair(row.padding, row.lowerEnd));
        EXPECT_EQ(paddingsOf(zones.at(2)), std::make_pair(10.0, 10.0));
    }
}

// The items of a row of 300 pixels.
QJsonArray rowOf(const std::string& items)
{
    const QJsonObject card = layOut(R"({"type": "bubble", "body": {"type": "box", "layout": )"
                                    R"("horizontal", "paddingAll": "0px", "contents": [)"
                                    + items + "]}}");
    return childrenOf(childrenOf(card).at(0));
}

TEST(GuideClaims, ColumnsWithoutAWidthOfTheirOwnAreEven)
{
    const auto column = [](const char* width, const char* text) {
        return R"({"type": "box", "layout": "vertical", )" + std::string(width)
            + R"("flex": 1, "contents": [{"type": "text", "text": ")" + text + R"("}]})";
    };
    const char* const none = R"("width": "0px", )";
    const auto even = widthsOf(rowOf(column(none, "a longer text") + ", " + column(none, "a")));
    EXPECT_EQ(even, (std::vector<double> {150, 150}));
    const auto uneven = widthsOf(rowOf(column("", "a longer text") + ", " + column("", "a")));
    EXPECT_GT(uneven.at(0), uneven.at(1));
}

TEST(GuideClaims, TextsShareTheRowByTheirFlex)
{
    const char* const shares = R"({"type": "text", "text": "a longer text", "flex": 1},
                                  {"type": "text", "text": "b", "flex": 3})";
    EXPECT_EQ(widthsOf(rowOf(shares)), (std::vector<double> {75, 225}));
    const char* const price = R"({"type": "text", "text": "a name"},
                                 {"type": "text", "text": "1.00", "flex": 0})";
    const QJsonValue last = rowOf(price).at(1);
    EXPECT_EQ(numberOf(last, "x") + numberOf(last, "width"), 300);
    EXPECT_LT(numberOf(last, "width"), 60);
}

} // namespace
} // namespace plix::test
