#include "check/AuthorCheck.h"

#include "FormatText.h"
#include "check/ActionRules.h"
#include "check/Excerpt.h"
#include "check/ItemRules.h"
#include "check/Speller.h"
#include "check/ValueCheck.h"
#include "check/ZoneStyleRules.h"

namespace plix::tool {
namespace {

QStringList keysOf(const PlixFormatComponent& format)
{
    QStringList keys;
    for (const PlixFormatKey& key : format.keys)
        keys.append(toQString(key.name));
    if (!format.type.empty())
        keys.append(QStringLiteral("type"));
    return keys;
}

QStringList componentTypes()
{
    QStringList types;
    for (const PlixFormatComponent& component : ComponentFormats())
        types.append(toQString(component.type));
    return types;
}

} // namespace

AuthorCheck::AuthorCheck(Findings& findings)
    : findings_(findings)
{
}

void AuthorCheck::check(const JsonNode& root)
{
    checkObject(root, BubbleFormat(), {}, nullptr);
    checkZoneStyles(root, findings_);
}

void AuthorCheck::checkObject(const JsonNode& object, const PlixFormatComponent& format,
                              const QString& path, const CardItem* item)
{
    for (const JsonMember& member : object.members) {
        if (!member.isReplaced)
            checkMember(member, format, path, item);
    }
}

void AuthorCheck::checkMember(const JsonMember& member, const PlixFormatComponent& format,
                              const QString& path, const CardItem* item)
{
    const PlixFormatKey* const key = FindKeyFormat(format, member.name);
    const QString memberPath = tool::memberPath(path, member.name);
    if (key) {
        checkValue(*key, member.value, memberPath, findings_);
        checkPart(*key, member.value, memberPath, item);
        return;
    }
    const bool isSchema = path.isEmpty() && member.name == "$schema"; // for editors
    if (!isSchema && (member.name != "type" || format.type.empty()))
        noteUnknownKey(member, keysOf(format), memberPath);
}

void AuthorCheck::checkPart(const PlixFormatKey& key, const JsonNode& value, const QString& path,
                            const CardItem* item)
{
    switch (key.part) {
    case PlixFormatPart::None:
    case PlixFormatPart::Variants:
        break;
    case PlixFormatPart::Component:
        if (value.isArray())
            checkContents(value, path, item);
        else if (value.isObject())
            checkZone(value, key.name);
        break;
    case PlixFormatPart::Span:
        checkSpans(value, path);
        break;
    case PlixFormatPart::Texts:
        checkTexts(key, value, path);
        break;
    case PlixFormatPart::Action:
        if (value.isObject())
            checkAction(value, path, findings_);
        checkObject(value, PartFormat(key.part), path, nullptr);
        break;
    case PlixFormatPart::Styles:
    case PlixFormatPart::ZoneStyle:
        checkObject(value, PartFormat(key.part), path, nullptr);
        break;
    }
}

void AuthorCheck::checkContents(const JsonNode& contents, const QString& path, const CardItem* box)
{
    int index = 0;
    for (const JsonNode& node : contents.elements) {
        const int own = index++;
        const QString nodePath = elementPath(path, own);
        const PlixFormatComponent* const format = componentFormat(node, nodePath);
        if (!format)
            continue;
        const CardItem item {node, *format, nodePath, box, own, {}};
        checkItem(item, findings_);
        checkObject(node, *format, nodePath, &item);
    }
}

void AuthorCheck::checkZone(const JsonNode& node, std::string_view zone)
{
    const QString path = toQString(zone);
    const PlixFormatComponent* const format = componentFormat(node, path);
    if (!format)
        return;
    const CardItem item {node, *format, path, nullptr, 0, zone};
    checkItem(item, findings_);
    checkObject(node, *format, path, &item);
}

void AuthorCheck::checkSpans(const JsonNode& spans, const QString& path)
{
    const PlixFormatComponent& format = PartFormat(PlixFormatPart::Span);
    int index = 0;
    for (const JsonNode& span : spans.elements) {
        const QString spanPath = elementPath(path, index++);
        if (!isTyped(span, spanPath, {toQString(format.type)}))
            continue;
        const CardItem item {span, format, spanPath, nullptr, 1, {}};
        checkItem(item, findings_);
        checkObject(span, format, spanPath, nullptr);
    }
}

void AuthorCheck::checkTexts(const PlixFormatKey& key, const JsonNode& texts, const QString& path)
{
    const QStringList languages = wordsOf(key);
    for (const JsonMember& member : texts.members) {
        if (!languages.contains(QString::fromStdString(member.name)))
            noteUnknownKey(member, languages, memberPath(path, member.name));
    }
}

const PlixFormatComponent* AuthorCheck::componentFormat(const JsonNode& node, const QString& path)
{
    return isTyped(node, path, componentTypes()) ? FindComponentFormat(textOf(node, "type"))
                                                 : nullptr;
}

// What is not, is left out of the card.
bool AuthorCheck::isTyped(const JsonNode& node, const QString& path, const QStringList& types)
{
    const JsonMember* const type = node.find("type");
    if (!node.isObject()) {
        findings_.push_back({Rule::WrongKind,
                             node.range,
                             path,
                             QStringLiteral("this must be an object, { ... }; lost: the value"),
                             {},
                             {},
                             {}});
        return false;
    }
    const TextRange start = {node.range.begin, node.range.begin + 1};
    if (!type) {
        findings_.push_back(
            {Rule::UnknownType,
             start,
             path,
             QStringLiteral("a \"type\" is missing; it is one of %1. This is left out of the card")
                 .arg(types.join(QStringLiteral(", "))),
             types.size() == 1 ? QStringLiteral("\"type\": ") + quoted(types.front()) : QString(),
             {},
             {}});
        return false;
    }
    const QString word = QString::fromStdString(type->value.text);
    if (types.contains(word))
        return true;
    const QString probable = probableWord(word, types);
    const bool isOtherCase =
        !probable.isEmpty() && probable.compare(word.trimmed(), Qt::CaseInsensitive) == 0;
    findings_.push_back(
        {isOtherCase ? Rule::WrongCase : Rule::UnknownType,
         type->value.range,
         memberPath(path, "type"),
         QStringLiteral("%1 is no \"type\" here; it is one of %2. This is left out of the card")
             .arg(quoted(word), types.join(QStringLiteral(", "))),
         probable.isEmpty() ? QString() : quoted(probable),
         {},
         {}});
    return false;
}

void AuthorCheck::noteUnknownKey(const JsonMember& member, const QStringList& known,
                                 const QString& path)
{
    const QString key = QString::fromStdString(member.name);
    const QString probable = probableWord(key, known);
    findings_.push_back({Rule::UnknownKey,
                         member.nameRange,
                         path,
                         probable.isEmpty()
                             ? QStringLiteral("%1 is no key here; the keys are %2")
                                   .arg(quoted(key), known.join(QStringLiteral(", ")))
                             : QStringLiteral("%1 is no key here").arg(quoted(key)),
                         probable.isEmpty() ? QString() : quoted(probable),
                         {},
                         {}});
}

} // namespace plix::tool
