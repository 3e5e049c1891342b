#include "view/Completions.h"

#include "FormatText.h"

#include "model/format/PlixFormat.h"

#include <array>

namespace plix::tool {
namespace {

std::string asText(const QString& word)
{
    return word.toStdString();
}

// What the text may contain in one object.
struct Choices {
    const PlixFormatComponent* component = nullptr; // its keys, if it has any
    // What the object is in the format, for the words of its "type".
    PlixFormatPart part = PlixFormatPart::None;
    // Names that are not keys: languages.
    std::span<const PlixFormatWord> names = {};
};

Choices choicesOfRoot()
{
    return {&BubbleFormat(), PlixFormatPart::None, {}};
}

// The choices in the value of a key.
Choices choicesIn(const Choices& around, const JsonScope& scope)
{
    const std::string name = asText(scope.key);
    const PlixFormatKey* const key =
        around.component ? FindKeyFormat(*around.component, name) : nullptr;
    if (!key)
        return {};
    Choices choices {nullptr, key->part, key->words};
    if (key->part == PlixFormatPart::Component)
        choices.component = FindComponentFormat(asText(scope.type));
    else
        choices.component = &PartFormat(key->part);
    return choices;
}

Choices choicesAt(const std::vector<JsonScope>& scopes)
{
    Choices choices = choicesOfRoot();
    Choices around = choices;
    for (std::size_t i = 1; i < scopes.size(); ++i) {
        // The elements of an array are what its key says.
        if (!scopes[i - 1].isArray)
            around = choices;
        choices = choicesIn(around, scopes[i]);
    }
    return choices;
}

// The value that a name begins with, and where the cursor is in it.
struct ValueTemplate {
    PlixJsonType type;
    const char* text;
    int cursorFromEnd;
};

constexpr std::array kTemplates = std::to_array<ValueTemplate>({
    {PlixJsonType::String, "\"\"", 1},
    {PlixJsonType::Integer, "", 0},
    {PlixJsonType::Boolean, "", 0},
    {PlixJsonType::Object, "{}", 1},
    {PlixJsonType::Array, "[]", 1},
});

const ValueTemplate& templateOf(PlixJsonType type)
{
    for (const ValueTemplate& each : kTemplates) {
        if (each.type == type)
            return each;
    }
    return kTemplates.front();
}

QString inQuotes(const QString& word)
{
    return QLatin1Char('"') + word + QLatin1Char('"');
}

Completion nameCompletion(const QString& name, const QString& description, PlixJsonType type,
                          bool hasColon)
{
    if (hasColon)
        return {name, description, inQuotes(name), 0};
    const ValueTemplate& value = templateOf(type);
    return {name, description,
            inQuotes(name) + QStringLiteral(": ") + QString::fromLatin1(value.text),
            value.cursorFromEnd};
}

QString meaningOf(const PlixFormatWord& word)
{
    return word.pixels ? QStringLiteral("%1 pixels").arg(*word.pixels) : toQString(word.meaning);
}

void addWord(std::vector<Completion>& completions, const QString& word, const QString& description)
{
    completions.push_back({word, description, inQuotes(word), 0});
}

void addComponent(std::vector<Completion>& completions, const PlixFormatComponent& component)
{
    addWord(completions, toQString(component.type), toQString(component.description));
}

bool hasType(const Choices& choices)
{
    return choices.part == PlixFormatPart::Component || choices.part == PlixFormatPart::Span
        || choices.component == &BubbleFormat();
}

std::vector<Completion> names(const JsonCursor& cursor, const Choices& choices)
{
    std::vector<Completion> completions;
    const QStringList& present = cursor.scopes.back().names;
    const auto add = [&](const QString& name, const QString& description, PlixJsonType type) {
        // The name at the cursor is one of those that are present.
        if (!present.contains(name) || name == cursor.word)
            completions.push_back(nameCompletion(name, description, type, cursor.hasColon));
    };
    const QString type = QStringLiteral("type");
    if (hasType(choices))
        add(type, QStringLiteral("What this is."), PlixJsonType::String);
    if (choices.component) {
        for (const PlixFormatKey& key : choices.component->keys)
            add(toQString(key.name), toQString(key.description), key.type);
    }
    for (const PlixFormatWord& word : choices.names)
        add(toQString(word.word), meaningOf(word), PlixJsonType::String);
    return completions;
}

std::vector<Completion> types(const Choices& choices)
{
    std::vector<Completion> completions;
    if (choices.part == PlixFormatPart::Component) {
        for (const PlixFormatComponent& component : ComponentFormats())
            addComponent(completions, component);
    } else if (choices.component) {
        addComponent(completions, *choices.component);
    }
    return completions;
}

std::vector<Completion> words(const JsonCursor& cursor, const Choices& choices)
{
    std::vector<Completion> completions;
    const std::string name = asText(cursor.name);
    const PlixFormatKey* const key =
        choices.component ? FindKeyFormat(*choices.component, name) : nullptr;
    if (!key)
        return hasType(choices) && name == "type" ? types(choices) : completions;
    if (key->type == PlixJsonType::Boolean) {
        for (const char* const word : {"true", "false"})
            completions.push_back({QLatin1String(word), {}, QLatin1String(word), 0});
    }
    if (key->type == PlixJsonType::String) {
        for (const PlixFormatWord& word : key->words)
            addWord(completions, toQString(word.word), meaningOf(word));
    }
    return completions;
}

} // namespace

std::vector<Completion> completionsAt(const JsonCursor& cursor)
{
    if (cursor.place == JsonCursor::Place::Nowhere || cursor.scopes.empty())
        return {};
    const bool isElement = cursor.scopes.back().isArray;
    if (isElement)
        return {};
    const Choices choices = choicesAt(cursor.scopes);
    return cursor.place == JsonCursor::Place::Name ? names(cursor, choices)
                                                   : words(cursor, choices);
}

} // namespace plix::tool
