// Every key of the format with values of every kind, in every place where it may stand.
#include "ui/CardTree.h"
#include "ui/ClickHost.h"

#include "support/FormatPlaces.h"
#include "support/Mouse.h"
#include "support/PlixTest.h"

#include <QGraphicsRectItem>
#include <QPainter>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

namespace plix::test {
namespace {

// ----- The values

// Of a kind that no key takes, because it is not JSON.
constexpr std::string_view kBroken = "broken";

bool isLost(const PlixFormatKey& key, const JsonSample& sample)
{
    return sample.kind != kBroken && !takesKind(key.type, sample.kind);
}

std::vector<JsonSample> samples()
{
    static const std::string longString = '"' + std::string(5000, 'x') + '"';
    std::vector<JsonSample> all(std::begin(kSamples), std::end(kSamples));
    all.insert(all.end(),
               {{"boolean", "false"},
                {"number", "-1"},
                {"number", "2.5"},
                {"large number", "-1e300"},
                {"large number", "99999999999999999999"},
                {kBroken.data(), "1e999"},
                {kBroken.data(), "NaN"},
                {"string", "\"NaN\""},
                {"string", longString.c_str()},
                {"array", "[[[[]]], 1, null, \"a\", {}]"},
                {"object", R"({"en": {"default": {}}, "type": {"type": {}}, "body": {"a": 1}})"}});
    return all;
}

std::string validText(const PlixFormatKey& key)
{
    static constexpr auto kTexts = std::to_array<std::pair<PlixValueRule, const char*>>(
        {{PlixValueRule::Length, "7px"},
         {PlixValueRule::LengthOrPercent, "7px"},
         {PlixValueRule::Color, "#336699"},
         {PlixValueRule::ColorAlphaLast, "#33669980"},
         {PlixValueRule::Ratio, "2:1"}});
    if (key.rule == PlixValueRule::Word)
        return std::string(key.words.front().word);
    const auto* const row = std::find_if(kTexts.begin(), kTexts.end(),
                                         [&](const auto& each) { return each.first == key.rule; });
    return row == kTexts.end() ? "words" : row->second;
}

std::string validPart(PlixFormatPart part)
{
    static constexpr auto kParts = std::to_array<std::pair<PlixFormatPart, const char*>>(
        {{PlixFormatPart::Component, R"({"type": "text", "text": "part"})"},
         {PlixFormatPart::Span, R"({"type": "span", "text": "part"})"},
         {PlixFormatPart::Action, R"({"type": "uri", "label": "Part", "uri": "part"})"},
         {PlixFormatPart::Styles, R"({"body": {"separator": true}})"},
         {PlixFormatPart::ZoneStyle, R"({"separator": true})"},
         {PlixFormatPart::Texts, R"({"en": "part"})"},
         {PlixFormatPart::Variants, R"({"en": "part"})"}});
    const auto* const row = std::find_if(kParts.begin(), kParts.end(),
                                         [part](const auto& each) { return each.first == part; });
    EXPECT_NE(row, kParts.end());
    return row->second;
}

std::string validValue(const PlixFormatKey& key)
{
    switch (key.type) {
    case PlixJsonType::String:
        return '"' + validText(key) + '"';
    case PlixJsonType::Integer:
        return "1";
    case PlixJsonType::Boolean:
        return "true";
    case PlixJsonType::Object:
        return validPart(key.part);
    case PlixJsonType::Array:
        return '[' + validPart(key.part) + ']';
    }
    return "null";
}

std::string jsonMember(const PlixFormatKey& key, const std::string& value)
{
    return '"' + std::string(key.name) + "\": " + value + ", ";
}

// ----- The cards

// A card whose object at `place` has every key, but this value for `wrong`.
std::string cardWithWrong(const FormatPlace& place, const PlixFormatKey& wrong,
                          const std::string& value)
{
    std::string members;
    for (const PlixFormatKey& key : place.format->keys)
        members += jsonMember(key, &key == &wrong ? value : validValue(key));
    return place.before + members + place.after;
}

// What is left of it by the rules of the reader: keys after `wrong` are lost, unless its
// part is read by itself. An action of the wrong kind is one without members.
std::string cardThatIsLeft(const FormatPlace& place, const PlixFormatKey& wrong)
{
    std::string members;
    for (const PlixFormatKey& key : place.format->keys) {
        if (&key != &wrong)
            members += jsonMember(key, validValue(key));
        else if (key.part == PlixFormatPart::Action)
            members += jsonMember(key, "{}");
        else if (!IsReadByItself(key.part))
            break;
    }
    return place.before + members + place.after;
}

// ----- The places

constexpr char kSibling[] = R"({"type": "button", "action": {"type": "uri", "label": "Sibling",
    "uri": "sibling"}})";

// `before` and `after` are around the members of the object. A sibling follows in a box.
FormatPlace placeInBox(const std::string& name, const PlixFormatComponent& format,
                       const std::string& before, const std::string& after)
{
    return {&format, name,
            R"({"type": "bubble", "body": {"type": "box", "layout": "vertical", "contents": [)"
            R"({"type": "text", "text": "before"}, )"
                + before,
            after + ", " + kSibling + "]}}"};
}

std::string typeMember(const PlixFormatComponent& format)
{
    return "\"type\": \"" + std::string(format.type) + "\"}";
}

void addComponentPlaces(std::vector<FormatPlace>& places)
{
    for (const PlixFormatComponent& format : ComponentFormats()) {
        const std::string type(format.type);
        places.push_back({&format, type + "AtTheTop", R"({"type": "bubble", "body": {)",
                          typeMember(format) + ", \"footer\": " + kSibling + '}'});
        places.push_back(placeInBox(type + "InABox", format, "{", typeMember(format)));
    }
    const PlixFormatComponent& box = *FindComponentFormat("box");
    places.push_back(placeInBox("boxInARow", box,
                                R"({"type": "box", "layout": "horizontal", "contents": [{)",
                                typeMember(box) + R"(, {"type": "text", "text": "after"}]})"));
}

void addActionPlaces(std::vector<FormatPlace>& places)
{
    const PlixFormatComponent& action = PartFormat(PlixFormatPart::Action);
    for (const char* type : {"box", "text", "image", "button"}) {
        const std::string before = std::string(R"({"width": "40px", "height": "20px", "type": ")")
            + type + R"(", "text": "words", "action": {)";
        places.push_back(
            placeInBox("actionOfA" + std::string(type), action, before, R"("x": 0}})"));
    }
    places.push_back({&action, "actionOfTheBubble",
                      std::string(R"({"type": "bubble", "body": )") + kSibling + R"(, "action": {)",
                      R"("x": 0}})"});
}

std::vector<FormatPlace> confusedPlaces()
{
    std::vector<FormatPlace> places {{&BubbleFormat(), "bubble", "{", R"("type": "bubble"})"}};
    addComponentPlaces(places);
    addActionPlaces(places);
    const std::string text = R"({"type": "text", "contents": [{"type": "span", "text": "one"}, {)";
    places.push_back(
        placeInBox("span", PartFormat(PlixFormatPart::Span), text, R"("type": "span"}]})"));
    const std::string styles =
        std::string(R"({"type": "bubble", "body": )") + kSibling + R"(, "styles": {)";
    places.push_back({&PartFormat(PlixFormatPart::Styles), "styles", styles, R"("x": 0}})"});
    places.push_back({&PartFormat(PlixFormatPart::ZoneStyle), "zoneStyle", styles + R"("body": {)",
                      R"("x": 0}}})"});
    return places;
}

// ----- The test

// What a card looks like, and what arrives at its host when everything is clicked.
struct Look {
    std::vector<QRectF> geometry;
    QImage picture;
    Arrived arrived;

    bool operator==(const Look&) const = default;
};

class TypeConfusion : public PlixTest, public testing::WithParamInterface<FormatPlace> {
protected:
    TypeConfusion()
        : view_(*new QGraphicsRectItem(0, 0, 300, 300))
    {
    }

    // Reads, builds, paints and clicks the card, and ends it.
    Look lookOf(const std::string& json)
    {
        const TestCard card(json, host_.setUp());
        view_.scene().addItem(card.root());
        Look look {geometryOf(*card.root()), paint(), {}};
        clickEverything(*card.root());
        look.arrived = std::exchange(host_.arrived, {});
        view_.scene().removeItem(card.root());
        return look;
    }

private:
    QImage paint()
    {
        QImage picture(300, 300, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::white);
        QPainter painter(&picture);
        view_.scene().render(&painter, picture.rect(), picture.rect());
        return picture;
    }

    void clickEverything(QGraphicsItem& root)
    {
        std::vector<QPointF> places;
        forEachItem(root, [&](QGraphicsItem& item) {
            if (Plix_HasAction(&item))
                places.push_back(item.sceneBoundingRect().center());
        });
        for (const QPointF& place : places)
            view_.click(place);
    }

    ClickHost host_;
    CardView view_;
};

TEST_P(TypeConfusion, LosesNoMoreThanTheReaderSays)
{
    const FormatPlace& place = GetParam();
    int cases = 0;
    for (const PlixFormatKey& key : place.format->keys) {
        const Look expected = lookOf(cardThatIsLeft(place, key));
        EXPECT_EQ(pendingLogLines(), 0);
        for (const JsonSample& sample : samples()) {
            SCOPED_TRACE(std::string(key.name) + ": " + std::string(sample.json).substr(0, 80));
            const Look look = lookOf(cardWithWrong(place, key, sample.json));
            ++cases;
            if (isLost(key, sample)) {
                EXPECT_EQ(pendingLogLines(), 1);
                EXPECT_EQ(look.geometry, expected.geometry);
                EXPECT_EQ(look.picture, expected.picture);
                EXPECT_EQ(look.arrived, expected.arrived);
            }
            ignoreLog();
        }
    }
    RecordProperty("cases", cases);
}

INSTANTIATE_TEST_SUITE_P(Places, TypeConfusion, testing::ValuesIn(confusedPlaces()),
                         [](const auto& place) { return place.param.path; });

} // namespace
} // namespace plix::test
