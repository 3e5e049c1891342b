#include "check/ReaderCheck.h"

#include "check/CardItem.h"
#include "check/Excerpt.h"

#include <algorithm>
#include <limits>

namespace plix::tool {
namespace {

constexpr double kMinimumInteger = std::numeric_limits<int>::min();
constexpr double kMaximumInteger = std::numeric_limits<int>::max();

QString kindName(PlixJsonType type)
{
    switch (type) {
    case PlixJsonType::String:
        return QStringLiteral("a text in quotes");
    case PlixJsonType::Integer:
        return QStringLiteral("a whole number");
    case PlixJsonType::Boolean:
        return QStringLiteral("true or false");
    case PlixJsonType::Object:
        return QStringLiteral("an object, { ... }");
    case PlixJsonType::Array:
        return QStringLiteral("an array, [ ... ]");
    }
    return {};
}

bool isPlain(const JsonNode& value)
{
    return value.kind == JsonNode::Kind::Boolean || value.kind == JsonNode::Kind::Null;
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
    switch (type) {
    case PlixJsonType::String:
        return value.isString();
    case PlixJsonType::Integer:
        return value.kind == JsonNode::Kind::Number;
    case PlixJsonType::Boolean:
        return value.kind == JsonNode::Kind::Boolean;
    case PlixJsonType::Object:
        return value.isObject();
    case PlixJsonType::Array:
        return value.isArray();
    }
    return true;
}

// What the reader makes of a value of another kind.
QString converted(PlixJsonType type, const JsonNode& value, bool asFlag)
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
        return asFlag ? QStringLiteral("true") : QStringLiteral("false");
    case PlixJsonType::Object:
    case PlixJsonType::Array:
        break;
    }
    return QStringLiteral("a missing value");
}

bool isLength(PlixValueRule rule)
{
    return rule == PlixValueRule::Length || rule == PlixValueRule::LengthOrPercent;
}

// What the author of a value of the wrong kind should write.
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
    if (key.type == PlixJsonType::Boolean && value.isString())
        return value.text == "true" ? QStringLiteral("true") : QStringLiteral("false");
    if (key.type == PlixJsonType::Array && value.isObject())
        return QStringLiteral("[ ... ] around it");
    return {};
}

} // namespace

ReaderCheck::ReaderCheck(const QByteArray& text, Findings& findings)
    : text_(text)
    , findings_(findings)
{
}

void ReaderCheck::check(const JsonNode& root)
{
    readKeys(root, BubbleFormat().keys, {});
    for (const auto& [index, loss] : losses_)
        describeLosses(index);
    for (const std::size_t index : loggedIndexes_)
        logged_.push_back(findings_[index]);
}

ReaderCheck::Failure ReaderCheck::readKeys(const JsonNode& object, Keys keys, const QString& path)
{
    std::vector<Entry> entries;
    for (const PlixFormatKey& key : keys) {
        if (const JsonMember* const member = object.find(key.name))
            entries.push_back({key, member});
    }
    return readEntries(entries, path);
}

ReaderCheck::Failure ReaderCheck::readEntries(const std::vector<Entry>& entries,
                                              const QString& path)
{
    Failure failure;
    for (const Entry& entry : entries) {
        const PlixFormatKey& key = entry.key;
        if (failure)
            lose(failure, quoted(key.name), key.part != PlixFormatPart::None);
        const Failure own = readKey(key, *entry.member, memberPath(path, key.name));
        if (own && !failure) {
            failure = own;
            ++lost_;
        }
    }
    if (failure)
        --lost_;
    return failure;
}

ReaderCheck::Failure ReaderCheck::readKey(const PlixFormatKey& key, const JsonMember& member,
                                          const QString& path)
{
    Failure failure = checkKind(key, member.value, path);
    if (!failure)
        failure = readPart(key, member.value, path);
    return IsReadByItself(key.part) ? std::nullopt : failure;
}

ReaderCheck::Failure ReaderCheck::readPart(const PlixFormatKey& key, const JsonNode& value,
                                           const QString& path)
{
    switch (key.part) {
    case PlixFormatPart::None:
        break;
    case PlixFormatPart::Component:
        if (value.isArray())
            readContents(value, path);
        else
            readComponent(value, path);
        break;
    case PlixFormatPart::Span:
        return readSpans(value, path);
    case PlixFormatPart::Texts:
        return readTexts(value, path, key.words);
    case PlixFormatPart::Variants:
        readVariants(value, path);
        break;
    case PlixFormatPart::Action:
    case PlixFormatPart::Styles:
    case PlixFormatPart::ZoneStyle:
        return readKeys(value, PartFormat(key.part).keys, path);
    }
    return std::nullopt;
}

ReaderCheck::Failure ReaderCheck::readSpans(const JsonNode& spans, const QString& path)
{
    const PlixFormatComponent& format = PartFormat(PlixFormatPart::Span);
    Failure failure;
    int index = 0;
    for (const JsonNode& span : spans.elements) {
        const QString spanPath = elementPath(path, index++);
        if (textOf(span, "type") != format.type)
            continue;
        if (failure)
            lose(failure, spanPath.mid(spanPath.lastIndexOf(QLatin1Char('.')) + 1), true);
        const Failure own = readKeys(span, format.keys, spanPath);
        if (own && !failure) {
            failure = own;
            ++lost_;
        }
    }
    if (failure)
        --lost_;
    return failure;
}

ReaderCheck::Failure ReaderCheck::readTexts(const JsonNode& texts, const QString& path,
                                            std::span<const PlixFormatWord> languages)
{
    std::vector<PlixFormatKey> keys;
    for (const PlixFormatWord& language : languages)
        keys.push_back({.name = language.word});
    return readKeys(texts, keys, path);
}

// The reader takes them in the order of their names.
void ReaderCheck::readVariants(const JsonNode& variants, const QString& path)
{
    std::vector<Entry> entries;
    for (const JsonMember& member : variants.members) {
        if (!member.isReplaced)
            entries.push_back({{.name = member.name}, &member});
    }
    std::sort(entries.begin(), entries.end(),
              [](const Entry& a, const Entry& b) { return a.key.name < b.key.name; });
    readEntries(entries, path);
}

void ReaderCheck::readContents(const JsonNode& contents, const QString& path)
{
    int index = 0;
    for (const JsonNode& element : contents.elements)
        readComponent(element, elementPath(path, index++));
}

void ReaderCheck::readComponent(const JsonNode& node, const QString& path)
{
    const PlixFormatComponent* const format = FindComponentFormat(textOf(node, "type"));
    if (!format)
        return;
    if (format->type == "box")
        readBox(node, *format, path);
    else
        readKeys(node, format->keys, path);
}

void ReaderCheck::readBox(const JsonNode& node, const PlixFormatComponent& format,
                          const QString& path)
{
    // The contents are read last, by themselves.
    const Keys contents = format.keys.last(1);
    ++nestedBoxes_;
    Failure failure = readKeys(node, format.keys.first(format.keys.size() - 1), path);
    if (!failure && lost_ == 0 && nestedBoxes_ > MaximumNestedBoxes()) {
        failure = fail(
            Rule::NestedTooDeep, node, path,
            QStringLiteral("boxes are nested deeper than %1 levels").arg(MaximumNestedBoxes()));
        // All of the box would be a long range.
        findings_[*failure].range.end = node.range.begin + 1;
    }
    if (failure) {
        ++lost_;
        if (node.find(contents.front().name))
            lose(failure, quoted(contents.front().name), true);
    }
    readKeys(node, contents, path);
    if (failure)
        --lost_;
    --nestedBoxes_;
}

ReaderCheck::Failure ReaderCheck::checkKind(const PlixFormatKey& key, const JsonNode& value,
                                            const QString& path)
{
    if (isReadable(key.type, value)) {
        if (!isOfKind(key.type, value))
            checkConversion(key, value, path);
        return std::nullopt;
    }
    const bool isTooLarge =
        key.type == PlixJsonType::Integer && value.kind == JsonNode::Kind::Number;
    const QString needed = isTooLarge
        ? QStringLiteral("a whole number from -2147483648 to 2147483647")
        : kindName(key.type);
    const std::size_t index = fail(
        Rule::WrongKind, value, path,
        QStringLiteral("%1 must be %2, but is %3").arg(quoted(key.name), needed, found(value)));
    findings_[index].mend = kindMend(key, value, found(value));
    losses_[index]; // also if nothing else is lost
    return index;
}

void ReaderCheck::checkConversion(const PlixFormatKey& key, const JsonNode& value,
                                  const QString& path)
{
    bool asFlag = value.kind == JsonNode::Kind::Number && value.number != 0;
    asFlag = asFlag || !value.text.empty() || !value.elements.empty() || !value.members.empty();
    findings_.push_back({Rule::ConvertedKind,
                         value.range,
                         path,
                         QStringLiteral("%1 must be %2; %3 counts as %4")
                             .arg(quoted(key.name), kindName(key.type), found(value),
                                  converted(key.type, value, asFlag)),
                         kindMend(key, value, found(value)),
                         {},
                         {}});
}

std::size_t ReaderCheck::fail(Rule rule, const JsonNode& value, const QString& path,
                              const QString& message)
{
    findings_.push_back({rule, value.range, path, message, {}, {}, {}});
    if (lost_ == 0)
        loggedIndexes_.push_back(findings_.size() - 1);
    return findings_.size() - 1;
}

void ReaderCheck::lose(const Failure& failure, const QString& name, bool isImportant)
{
    Loss& loss = losses_[*failure];
    ++loss.count;
    if (isImportant)
        loss.names.prepend(name);
    else
        loss.names.append(name);
}

void ReaderCheck::describeLosses(std::size_t index)
{
    constexpr int kNamed = 3;
    const Loss& loss = losses_[index];
    const QStringList names = loss.names.mid(0, kNamed);
    QString text = QStringLiteral("the value");
    if (loss.count > names.size())
        text = QStringLiteral("the %1 keys after it, among them %2")
                   .arg(loss.count)
                   .arg(names.join(QStringLiteral(", ")));
    else if (loss.count > 0)
        text = QStringLiteral("what is read after it: %1").arg(names.join(QStringLiteral(", ")));
    findings_[index].message += QStringLiteral("; lost: ") + text;
}

QString ReaderCheck::found(const JsonNode& value) const
{
    if (value.isObject())
        return QStringLiteral("an object");
    if (value.isArray())
        return QStringLiteral("an array");
    return excerpt(text_, value.range);
}

} // namespace plix::tool
