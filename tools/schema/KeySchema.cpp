#include "schema/KeySchema.h"

#include "FormatText.h"
#include "schema/SchemaWords.h"

#include <QColor>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace plix::tool {
namespace {

const QString kPattern = QStringLiteral("pattern");
const QString kColor = QStringLiteral("color");
const QString kColorAlphaLast = QStringLiteral("colorAlphaLast");

constexpr std::array kPartDefinitions = std::to_array<std::pair<PlixFormatPart, std::string_view>>({
    {PlixFormatPart::Component, "component"},
    {PlixFormatPart::Span, "span"},
    {PlixFormatPart::Action, "action"},
    {PlixFormatPart::Styles, "styles"},
    {PlixFormatPart::ZoneStyle, "zoneStyle"},
    {PlixFormatPart::Variants, "variants"},
});

QJsonObject typed(const char* type)
{
    return {{kType, QLatin1String(type)}};
}

QJsonObject patterned(const QString& pattern)
{
    return {{kPattern, pattern}};
}

// What a word stands for.
QString meaningOf(const PlixFormatWord& word)
{
    return word.pixels ? QStringLiteral("%1 pixels").arg(*word.pixels) : toQString(word.meaning);
}

// Editors show the descriptions beside the words. Validators ignore them.
QJsonObject wordsSchema(const PlixFormatKey& key)
{
    QJsonArray words;
    QJsonArray meanings;
    for (const PlixFormatWord& word : key.words) {
        words.append(toQString(word.word));
        meanings.append(meaningOf(word));
    }
    return {{QStringLiteral("enum"), words}, {QStringLiteral("enumDescriptions"), meanings}};
}

QJsonObject lengthSchema(const PlixFormatKey& key, const QString& units)
{
    const QString sign = key.mayBeNegative ? QStringLiteral("-?") : QString();
    const QJsonObject number = patterned(QStringLiteral("^%1[0-9]+(%2)?$").arg(sign, units));
    return {{QStringLiteral("anyOf"), QJsonArray {wordsSchema(key), number}}};
}

QJsonObject stringSchema(const PlixFormatKey& key)
{
    switch (key.rule) {
    case PlixValueRule::Text:
    case PlixValueRule::Url:
        return {};
    case PlixValueRule::Word:
        return wordsSchema(key);
    case PlixValueRule::Length:
        return lengthSchema(key, QStringLiteral("px"));
    case PlixValueRule::LengthOrPercent:
        return lengthSchema(key, QStringLiteral("px|%"));
    case PlixValueRule::Color:
        return schemaReference(kColor);
    case PlixValueRule::ColorAlphaLast:
        return schemaReference(kColorAlphaLast);
    case PlixValueRule::Ratio:
        return patterned(QStringLiteral("^[0-9]+([.][0-9]+)?:[0-9]+([.][0-9]+)?$"));
    }
    return {};
}

QJsonObject textsSchema(const PlixFormatKey& key)
{
    QJsonObject languages;
    for (const PlixFormatWord& word : key.words) {
        QJsonObject text = typed("string");
        text.insert(QStringLiteral("description"), toQString(word.meaning));
        languages.insert(toQString(word.word), text);
    }
    QJsonObject schema = typed("object");
    schema.insert(kProperties, languages);
    schema.insert(QStringLiteral("additionalProperties"), false);
    return schema;
}

QJsonObject merged(QJsonObject schema, const QJsonObject& more)
{
    for (auto member = more.begin(); member != more.end(); ++member)
        schema.insert(member.key(), member.value());
    return schema;
}

QJsonObject valueSchema(const PlixFormatKey& key)
{
    switch (key.type) {
    case PlixJsonType::String:
        return merged(typed("string"), stringSchema(key));
    case PlixJsonType::Integer:
        return merged(typed("integer"), {{QStringLiteral("minimum"), 0}});
    case PlixJsonType::Boolean:
        return typed("boolean");
    case PlixJsonType::Object:
        return key.part == PlixFormatPart::Texts ? textsSchema(key)
                                                 : schemaReference(partDefinition(key.part));
    case PlixJsonType::Array:
        return merged(typed("array"),
                      {{QStringLiteral("items"), schemaReference(partDefinition(key.part))}});
    }
    return {};
}

// The value of a text that is JSON, but no whole document.
QJsonValue toJsonValue(std::string_view json)
{
    return QJsonDocument::fromJson('[' + toQString(json).toUtf8() + ']').array().at(0);
}

// What a value looks like, for the description of its key.
QString formOf(PlixValueRule rule)
{
    switch (rule) {
    case PlixValueRule::Length:
        return QStringLiteral(" Pixels such as \"12px\", or a word.");
    case PlixValueRule::LengthOrPercent:
        return QStringLiteral(" Pixels such as \"12px\", a percentage such as \"50%\", or a word.");
    case PlixValueRule::Color:
        return QStringLiteral(" #RRGGBB, #AARRGGBB or an SVG colour name.");
    case PlixValueRule::ColorAlphaLast:
        return QStringLiteral(" #RRGGBB, #RRGGBBAA or an SVG colour name.");
    case PlixValueRule::Text:
    case PlixValueRule::Word:
    case PlixValueRule::Ratio:
    case PlixValueRule::Url:
        break;
    }
    return {};
}

QJsonObject colorDefinition(const QJsonObject& digits)
{
    const QJsonObject names {
        {QStringLiteral("enum"), QJsonArray::fromStringList(QColor::colorNames())}};
    QJsonObject schema = typed("string");
    schema.insert(QStringLiteral("anyOf"), QJsonArray {digits, names});
    return schema;
}

} // namespace

QJsonObject keySchema(const PlixFormatKey& key)
{
    QJsonObject schema = valueSchema(key);
    schema.insert(QStringLiteral("description"), toQString(key.description) + formOf(key.rule));
    if (!key.fallback.empty())
        schema.insert(QStringLiteral("default"), toJsonValue(key.fallback));
    return schema;
}

QJsonObject schemaReference(const QString& definition)
{
    return {{QStringLiteral("$ref"), QStringLiteral("#/$defs/") + definition}};
}

QJsonObject valueDefinitions()
{
    const QJsonObject digits = patterned(QStringLiteral("^#([0-9A-Fa-f]{6}|[0-9A-Fa-f]{8})$"));
    // The format makes editors show the colour. They read the transparency last.
    const QJsonObject shown =
        merged(digits, {{QStringLiteral("format"), QStringLiteral("color-hex")}});
    QJsonObject variants = typed("object");
    variants.insert(QStringLiteral("description"),
                    QStringLiteral("A value for each language, such as \"ko\" or \"zh-CN\". "
                                   "\"default\" is for every other language."));
    variants.insert(QStringLiteral("additionalProperties"), typed("string"));
    return {{kColor, colorDefinition(digits)},
            {kColorAlphaLast, colorDefinition(shown)},
            {partDefinition(PlixFormatPart::Variants), variants}};
}

QString partDefinition(PlixFormatPart part)
{
    const auto* const found = std::find_if(kPartDefinitions.begin(), kPartDefinitions.end(),
                                           [part](const auto& row) { return row.first == part; });
    return found == kPartDefinitions.end() ? QString() : toQString(found->second);
}

} // namespace plix::tool
