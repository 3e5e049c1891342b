#include "model/PlixJsonValue.h"

#include "api/PlixLogText.h"

#include <QLocale>
#include <QString>

namespace {

std::string_view TextOf(const Json::Value& string)
{
    const char* begin = nullptr;
    const char* end = nullptr;
    string.getString(&begin, &end);
    return {begin, static_cast<std::size_t>(end - begin)};
}

// Escaped here already: the text of an exception would end at a zero byte.
std::string Quoted(std::string_view text)
{
    constexpr int kMaxLength = 40;
    const QString all = QString::fromUtf8(text.data(), static_cast<int>(text.size()));
    return '"' + plix::ToLogText(all, kMaxLength).toStdString() + '"';
}

// jsoncpp's own conversion uses the decimal point of the locale.
std::string ToDigits(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest).toStdString();
}

std::string Describe(const Json::Value& value)
{
    switch (value.type()) {
    case Json::nullValue:
        return "null";
    case Json::booleanValue:
        return value.asBool() ? "true" : "false";
    case Json::intValue:
    case Json::uintValue:
        return "the number " + value.asString();
    case Json::realValue:
        return "the number " + ToDigits(value.asDouble());
    case Json::stringValue:
        return "the string " + Quoted(TextOf(value));
    case Json::arrayValue:
        return "an array";
    case Json::objectValue:
        return "an object";
    }
    return "an unknown value";
}

} // namespace

PlixJsonTypeError::PlixJsonTypeError(const PlixJsonMember& member, const char* needed)
    : std::runtime_error(Quoted(member.name) + " must be " + needed + ", but is "
                         + Describe(member.value))
{
}

std::string_view plix::ToString(const PlixJsonMember& member)
{
    switch (member.value.type()) {
    case Json::nullValue:
        return {};
    case Json::booleanValue:
        return member.value.asBool() ? "true" : "false";
    case Json::stringValue:
        return TextOf(member.value);
    default:
        throw PlixJsonTypeError(member, "a string");
    }
}

int plix::ToInteger(const PlixJsonMember& member)
{
    const bool converts =
        member.value.isNull() || member.value.isBool() || member.value.isNumeric();
    if (!converts)
        throw PlixJsonTypeError(member, "a whole number");
    try {
        return member.value.asInt();
    } catch (const Json::Exception&) {
        throw PlixJsonTypeError(member, "a whole number from -2147483648 to 2147483647");
    }
}

bool plix::ToBoolean(const PlixJsonMember& member)
{
    if (member.value.isString())
        return !TextOf(member.value).empty();
    if (member.value.isArray() || member.value.isObject())
        return !member.value.empty();
    return member.value.asBool();
}

const Json::Value& plix::RequireObject(const PlixJsonMember& member)
{
    if (!member.value.isObject() && !member.value.isNull())
        throw PlixJsonTypeError(member, "an object");
    return member.value;
}

const Json::Value& plix::RequireArray(const PlixJsonMember& member)
{
    if (!member.value.isArray() && !member.value.isNull())
        throw PlixJsonTypeError(member, "an array");
    return member.value;
}

std::string_view plix::MemberName(const Json::ValueConstIterator& member)
{
    const char* end = nullptr;
    const char* const start = member.memberName(&end);
    return {start, static_cast<std::size_t>(end - start)};
}

const Json::Value* plix::FindMember(const Json::Value& object, std::string_view name)
{
    return object.find(name.data(), name.data() + name.size());
}

std::string_view plix::TypeWord(const Json::Value& node)
{
    const Json::Value* const type = node.isObject() ? FindMember(node, "type") : nullptr;
    return type && type->isString() ? TextOf(*type) : std::string_view();
}
