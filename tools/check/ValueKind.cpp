#include "check/ValueKind.h"

#include <QLatin1String>

#include <algorithm>
#include <array>
#include <limits>

namespace plix::tool {
namespace {

constexpr double kMinimumInteger = std::numeric_limits<int>::min();
constexpr double kMaximumInteger = std::numeric_limits<int>::max();

struct KindRow {
    PlixJsonType type;
    JsonNode::Kind kind;
    const char* name;
};

constexpr std::array kKinds = std::to_array<KindRow>({
    {PlixJsonType::String, JsonNode::Kind::String, "a text in quotes"},
    {PlixJsonType::Integer, JsonNode::Kind::Number, "a whole number"},
    {PlixJsonType::Boolean, JsonNode::Kind::Boolean, "true or false"},
    {PlixJsonType::Object, JsonNode::Kind::Object, "an object, { ... }"},
    {PlixJsonType::Array, JsonNode::Kind::Array, "an array, [ ... ]"},
});

const KindRow& kindOf(PlixJsonType type)
{
    return *std::find_if(kKinds.begin(), kKinds.end(),
                         [type](const KindRow& row) { return row.type == type; });
}

bool isPlain(const JsonNode& value)
{
    return value.kind == JsonNode::Kind::Boolean || value.kind == JsonNode::Kind::Null;
}

bool isLength(PlixValueRule rule)
{
    return rule == PlixValueRule::Length || rule == PlixValueRule::LengthOrPercent;
}

struct FlagWord {
    QLatin1String word;
    bool flag;
};

const std::array kFlagWords = std::to_array<FlagWord>({
    {QLatin1String("true"), true},
    {QLatin1String("yes"), true},
    {QLatin1String("on"), true},
    {QLatin1String("1"), true},
    {QLatin1String("false"), false},
    {QLatin1String("no"), false},
    {QLatin1String("off"), false},
    {QLatin1String("0"), false},
});

// What the author of a text or a number means where true or false belongs.
QString flagMend(const JsonNode& value)
{
    const QString word = value.kind == JsonNode::Kind::Number ? QString::number(value.number)
                                                              : QString::fromStdString(value.text);
    const auto* const row =
        std::find_if(kFlagWords.begin(), kFlagWords.end(), [&word](const FlagWord& each) {
            return word.compare(each.word, Qt::CaseInsensitive) == 0;
        });
    if (row == kFlagWords.end())
        return {};
    return row->flag ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

QString kindName(PlixJsonType type)
{
    return QLatin1String(kindOf(type).name);
}

bool isReadable(PlixJsonType type, const JsonNode& value)
{
    switch (type) {
    case PlixJsonType::String:
        return value.isString() || isPlain(value);
    case PlixJsonType::Integer:
        return isPlain(value)
            || (value.kind == JsonNode::Kind::Number && value.number >= kMinimumInteger
                && value.number <= kMaximumInteger);
    case PlixJsonType::Boolean:
        return true;
    case PlixJsonType::Object:
        return value.isObject() || value.kind == JsonNode::Kind::Null;
    case PlixJsonType::Array:
        return value.isArray() || value.kind == JsonNode::Kind::Null;
    }
    return true;
}

bool isOfKind(PlixJsonType type, const JsonNode& value)
{
    return value.kind == kindOf(type).kind;
}

bool flagOf(const JsonNode& value)
{
    switch (value.kind) {
    case JsonNode::Kind::Null:
        return false;
    case JsonNode::Kind::Boolean:
        return value.boolean;
    case JsonNode::Kind::Number:
        return value.number != 0;
    case JsonNode::Kind::String:
        return !value.text.empty();
    case JsonNode::Kind::Array:
        return !value.elements.empty();
    case JsonNode::Kind::Object:
        return !value.members.empty();
    }
    return false;
}

QString convertedValue(PlixJsonType type, const JsonNode& value)
{
    const bool isTrue = value.kind == JsonNode::Kind::Boolean && value.boolean;
    switch (type) {
    case PlixJsonType::String:
        if (value.kind == JsonNode::Kind::Null)
            return QStringLiteral("an empty text");
        return isTrue ? QStringLiteral("the text \"true\"") : QStringLiteral("the text \"false\"");
    case PlixJsonType::Integer:
        return isTrue ? QStringLiteral("1") : QStringLiteral("0");
    case PlixJsonType::Boolean:
        return flagOf(value) ? QStringLiteral("true") : QStringLiteral("false");
    case PlixJsonType::Object:
    case PlixJsonType::Array:
        break;
    }
    return QStringLiteral("a missing value");
}

QString kindMend(const PlixFormatKey& key, const JsonNode& value, const QString& found)
{
    const bool isNumber = value.kind == JsonNode::Kind::Number;
    if (key.type == PlixJsonType::String && isNumber)
        return QStringLiteral("\"%1%2\"")
            .arg(found, isLength(key.rule) ? QStringLiteral("px") : QString());
    if (key.type == PlixJsonType::Integer && value.isString()) {
        bool isInteger = false;
        const int number = QString::fromStdString(value.text).toInt(&isInteger);
        return isInteger ? QString::number(number) : QString();
    }
    if (key.type == PlixJsonType::Boolean)
        return flagMend(value);
    if (key.type == PlixJsonType::Array && value.isObject())
        return QStringLiteral("[ ... ] around it");
    return {};
}

} // namespace plix::tool
