#include "guide/KeyTable.h"

#include "FormatText.h"

#include <QStringList>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace plix::tool {
namespace {

const QString kNothing = QStringLiteral("–");

template <typename Value, std::size_t Size>
QString textFor(Value value, const std::array<std::pair<Value, std::string_view>, Size>& table)
{
    const auto found = std::find_if(table.begin(), table.end(),
                                    [value](const auto& row) { return row.first == value; });
    return found == table.end() ? QString() : toQString(found->second);
}

constexpr std::array kTypeNames = std::to_array<std::pair<PlixJsonType, std::string_view>>({
    {PlixJsonType::String, "text"},
    {PlixJsonType::Integer, "number"},
    {PlixJsonType::Boolean, "`true` or `false`"},
    {PlixJsonType::Object, "object"},
    {PlixJsonType::Array, "list"},
});

constexpr std::array kRuleNames = std::to_array<std::pair<PlixValueRule, std::string_view>>({
    {PlixValueRule::Word, "word"},
    {PlixValueRule::Length, "[length](#lengths)"},
    {PlixValueRule::LengthOrPercent, "[length or %](#lengths)"},
    {PlixValueRule::Color, "[colour](#colours), #AARRGGBB"},
    {PlixValueRule::ColorAlphaLast, "[colour](#colours), #RRGGBBAA"},
    {PlixValueRule::Ratio, "two numbers with a colon"},
    {PlixValueRule::Url, "address"},
});

constexpr std::array kPartNames = std::to_array<std::pair<PlixFormatPart, std::string_view>>({
    {PlixFormatPart::Component, "[component](#components)"},
    {PlixFormatPart::Span, "[span](#span)"},
    {PlixFormatPart::Action, "[action](#action)"},
    {PlixFormatPart::Styles, "[styles](#styles)"},
    {PlixFormatPart::ZoneStyle, "[zone style](#styles)"},
    {PlixFormatPart::Texts, "a text for each language"},
    {PlixFormatPart::Variants, "a text for each [language](#languages)"},
});

QString kindOf(const PlixFormatKey& key)
{
    QString part = textFor(key.part, kPartNames);
    if (key.type == PlixJsonType::Array)
        return QStringLiteral("list of %1s").arg(part);
    if (!part.isEmpty())
        return part;
    QString rule = textFor(key.rule, kRuleNames);
    return rule.isEmpty() ? textFor(key.type, kTypeNames) : rule;
}

QString code(const QString& text)
{
    return QLatin1Char('`') + text + QLatin1Char('`');
}

// The words, with what they stand for. Words with a meaning have a line each.
QString wordsOf(const PlixFormatKey& key)
{
    QString words;
    for (const PlixFormatWord& word : key.words) {
        const QString meaning =
            word.pixels ? QString::number(*word.pixels) : toQString(word.meaning);
        if (!words.isEmpty())
            words += word.pixels ? QStringLiteral(", ") : QStringLiteral("<br>");
        words += code(toQString(word.word)) + QLatin1Char(' ') + meaning;
    }
    return words;
}

QString withoutItOf(const PlixFormatKey& key)
{
    if (key.isRequired)
        return QStringLiteral("**always give it**");
    return key.fallback.empty() ? kNothing : code(toQString(key.fallback));
}

QString wrongTextOf(const PlixFormatKey& key)
{
    switch (key.rule) {
    case PlixValueRule::Word:
        return key.unknownWord.empty() ? QStringLiteral("as without it")
                                       : toQString(key.unknownWord);
    case PlixValueRule::Length:
    case PlixValueRule::LengthOrPercent:
        return QStringLiteral("0");
    case PlixValueRule::Color:
    case PlixValueRule::ColorAlphaLast:
        return QStringLiteral("black");
    case PlixValueRule::Ratio:
        return code(QStringLiteral("\"1:1\""));
    case PlixValueRule::Text:
    case PlixValueRule::Url:
        break;
    }
    return kNothing;
}

// What a value of the right kind counts as that cannot be read.
QString wrongValueOf(const PlixFormatKey& key)
{
    switch (key.type) {
    case PlixJsonType::String:
        return wrongTextOf(key);
    case PlixJsonType::Integer:
        return QStringLiteral("1.5 is 1, -1 is 0");
    case PlixJsonType::Boolean:
        return QStringLiteral("any text is `true`");
    case PlixJsonType::Object:
    case PlixJsonType::Array:
        break;
    }
    return kNothing;
}

QString rowOf(const QStringList& cells)
{
    return QStringLiteral("| %1 |\n").arg(cells.join(QStringLiteral(" | ")));
}

} // namespace

QString keyTable(const PlixFormatComponent& component)
{
    const QStringList heads {QStringLiteral("key"), QStringLiteral("value"),
                             QStringLiteral("without it"), QStringLiteral("wrong values"),
                             QStringLiteral("what it does")};
    QString table = rowOf(heads) + QStringLiteral("|---|---|---|---|---|\n");
    for (const PlixFormatKey& key : component.keys) {
        const QString words = wordsOf(key);
        table +=
            rowOf({code(toQString(key.name)),
                   words.isEmpty() ? kindOf(key) : kindOf(key) + QStringLiteral("<br>") + words,
                   withoutItOf(key), wrongValueOf(key), toQString(key.description)});
    }
    return table;
}

} // namespace plix::tool
