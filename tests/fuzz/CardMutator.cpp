#include "CardMutator.h"

#include "FuzzTargets.h"

#include <json/reader.h>
#include <json/writer.h>

#include <array>
#include <limits>
#include <memory>
#include <utility>

namespace plix::test {
namespace {

const char* const kContents = "contents";

constexpr std::array kTexts {"",
                             "a",
                             "two words",
                             "WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW",
                             "one\ntwo\u2028three",
                             "العشاء غدا",
                             "晚上一起吃饭",
                             "ราคาอาหารกลางวัน",
                             "😀👨‍👩‍👧🇰🇷🇰🇷",
                             "<m user=\"7\">Ann</m> pays",
                             "<e code=\"1F600\"/>",
                             "a\xCC\x88\xCC\x88\xCC\x88",
                             "\u202e\u2067mirror",
                             "soft\u00adhyphen\ttab"};
constexpr std::array kColors {"#FF0000", "#80FF0000", "red", "#F00", "transparent", "#12345"};
constexpr std::array kLengths {"0", "1px", "13", "-1px", "2147483647px", "99999999999999", "px"};
constexpr std::array kPercents {"50%", "100%", "-50%", "2147483647%", "%"};
constexpr std::array kRatios {"16:9", "1:1", "1:1000", "0:1", "1e30:1", ":"};

Json::Value parse(const std::string& json)
{
    const std::unique_ptr<Json::CharReader> reader(Json::CharReaderBuilder().newCharReader());
    Json::Value root;
    const bool isRead = reader->parse(json.data(), json.data() + json.size(), &root, nullptr);
    return isRead && root.isObject() ? root : Json::Value(Json::objectValue);
}

std::string write(const Json::Value& root)
{
    Json::StreamWriterBuilder builder;
    builder["indentation"] = "";
    builder["emitUTF8"] = true;
    return Json::writeString(builder, root);
}

} // namespace

CardMutator::CardMutator(Json::Value& card, unsigned seed)
    : card_(card)
    , random_(seed)
{
    card_["type"] = "bubble";
    if (!card_.isMember("body"))
        card_["body"] = component();
    findPlaces(card_, BubbleFormat());
}

void CardMutator::findPlaces(Json::Value& object, const PlixFormatComponent& format)
{
    if (!object.isObject())
        return;
    places_.push_back({&object, &format});
    for (const PlixFormatKey& key : format.keys) {
        Json::Value* const value =
            object.isMember(std::string(key.name)) ? &object[std::string(key.name)] : nullptr;
        if (!value || key.part == PlixFormatPart::None)
            continue;
        if (value->isArray()) {
            for (Json::Value& element : *value)
                findPlacesBelow(element, key.part);
        } else {
            findPlacesBelow(*value, key.part);
        }
    }
}

void CardMutator::findPlacesBelow(Json::Value& value, PlixFormatPart part)
{
    if (!value.isObject())
        return;
    if (part != PlixFormatPart::Component)
        return findPlaces(value, PartFormat(part));
    const Json::Value& type = value["type"];
    const PlixFormatComponent* const format =
        type.isString() ? FindComponentFormat(type.asString()) : nullptr;
    if (format)
        findPlaces(value, *format);
}

void CardMutator::mutate()
{
    static constexpr std::array kMutations {
        &CardMutator::setKey,         &CardMutator::setKey,       &CardMutator::setKey,
        &CardMutator::removeKey,      &CardMutator::addComponent, &CardMutator::addComponent,
        &CardMutator::repeatElements, &CardMutator::wrapInBox};
    (this->*oneOf(kMutations))(oneOf(places_));
}

void CardMutator::setKey(const Place& place)
{
    if (place.format->keys.empty())
        return;
    const PlixFormatKey& key = oneOf(place.format->keys);
    (*place.object)[std::string(key.name)] = below(8) == 0 ? wrongValue() : valueOf(key);
}

void CardMutator::removeKey(const Place& place)
{
    const std::vector<std::string> names = place.object->getMemberNames();
    if (!names.empty())
        place.object->removeMember(oneOf(names));
}

void CardMutator::addComponent(const Place& place)
{
    Json::Value& contents = (*place.object)[kContents];
    if (contents.isNull() || contents.isArray())
        contents.append(component());
}

void CardMutator::repeatElements(const Place& place)
{
    Json::Value& contents = (*place.object)[kContents];
    if (!contents.isArray() || contents.empty())
        return;
    const Json::Value element = contents[below(contents.size())];
    for (int i = 1 << below(6); i > 0; --i)
        contents.append(element);
}

void CardMutator::wrapInBox(const Place& place)
{
    Json::Value& contents = (*place.object)[kContents];
    if (!contents.isArray())
        return;
    Json::Value box(Json::objectValue);
    box["type"] = "box";
    box["layout"] = below(2) == 0 ? "horizontal" : "vertical";
    box[kContents] = std::move(contents);
    contents = Json::Value(Json::arrayValue);
    contents.append(std::move(box));
}

Json::Value CardMutator::valueOf(const PlixFormatKey& key)
{
    switch (key.type) {
    case PlixJsonType::Integer:
        return below(3) == 0 ? Json::Value(std::numeric_limits<int>::max())
                             : Json::Value(below(9) - 2);
    case PlixJsonType::Boolean:
        return below(2) == 0;
    case PlixJsonType::String:
        return textFor(key);
    case PlixJsonType::Array: {
        Json::Value array(Json::arrayValue);
        array.append(key.part == PlixFormatPart::Component ? component()
                                                           : Json::Value(Json::objectValue));
        return array;
    }
    case PlixJsonType::Object:
        break;
    }
    if (key.part == PlixFormatPart::Component)
        return component();
    Json::Value object(Json::objectValue);
    object["default"] = oneOf(kTexts);
    return object;
}

Json::Value CardMutator::textFor(const PlixFormatKey& key)
{
    if (!key.words.empty() && below(3) != 0)
        return std::string(oneOf(key.words).word);
    switch (key.rule) {
    case PlixValueRule::Length:
        return oneOf(kLengths);
    case PlixValueRule::LengthOrPercent:
        return below(2) == 0 ? oneOf(kLengths) : oneOf(kPercents);
    case PlixValueRule::Color:
    case PlixValueRule::ColorAlphaLast:
        return oneOf(kColors);
    case PlixValueRule::Ratio:
        return oneOf(kRatios);
    default:
        return oneOf(kTexts);
    }
}

Json::Value CardMutator::wrongValue()
{
    static const std::vector<Json::Value> values {Json::Value(),
                                                  Json::Value(7),
                                                  Json::Value(-1.5),
                                                  Json::Value(1e300),
                                                  Json::Value(true),
                                                  Json::Value("huh"),
                                                  Json::Value(Json::arrayValue),
                                                  Json::Value(Json::objectValue)};
    return oneOf(values);
}

Json::Value CardMutator::component()
{
    const PlixFormatComponent& format = oneOf(ComponentFormats());
    Json::Value object(Json::objectValue);
    object["type"] = std::string(format.type);
    for (int i = below(4); i > 0; --i) {
        const PlixFormatKey& key = oneOf(format.keys);
        if (key.part != PlixFormatPart::Component)
            object[std::string(key.name)] = valueOf(key);
    }
    return object;
}

std::string mutateCard(const std::string& input, unsigned seed)
{
    const std::size_t end = std::min(input.find('\0'), input.size());
    Json::Value card = parse(input.substr(std::min(end + 1, input.size())));
    CardMutator(card, seed).mutate();
    return input.substr(0, end) + '\0' + write(card);
}

} // namespace plix::test
