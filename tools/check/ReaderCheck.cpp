#include "check/ReaderCheck.h"

#include "check/CardItem.h"
#include "check/Excerpt.h"
#include "check/ValueKind.h"

#include <algorithm>

namespace plix::tool {

// Parts that are read one after the other. Once one has failed, the others are lost.
class ReaderCheck::Sequence {
public:
    explicit Sequence(ReaderCheck& check)
        : check_(check)
    {
    }

    ~Sequence()
    {
        if (failure_)
            --check_.lost_;
    }

    Sequence(const Sequence&) = delete;
    Sequence& operator=(const Sequence&) = delete;

    const Failure& failure() const { return failure_; }

    void begin(const QString& name, bool isImportant)
    {
        if (failure_)
            check_.losses_.add(*failure_, name, isImportant);
    }

    void end(const Failure& failure)
    {
        if (!failure || failure_)
            return;
        failure_ = *failure;
        ++check_.lost_;
    }

private:
    ReaderCheck& check_;
    Failure failure_;
};

ReaderCheck::ReaderCheck(const QByteArray& text, Findings& findings)
    : text_(text)
    , findings_(findings)
{
}

void ReaderCheck::check(const JsonNode& root)
{
    readKeys(root, BubbleFormat().keys, {});
    losses_.describe(findings_);
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
    Sequence sequence(*this);
    for (const Entry& entry : entries) {
        const PlixFormatKey& key = entry.key;
        sequence.begin(quoted(key.name), key.part != PlixFormatPart::None);
        sequence.end(readKey(key, *entry.member, memberPath(path, key.name)));
    }
    return sequence.failure();
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
    Sequence sequence(*this);
    int index = 0;
    for (const JsonNode& span : spans.elements) {
        const QString spanPath = elementPath(path, index++);
        if (textOf(span, "type") != format.type)
            continue;
        sequence.begin(spanPath.mid(spanPath.lastIndexOf(QLatin1Char('.')) + 1), true);
        sequence.end(readKeys(span, format.keys, spanPath));
    }
    return sequence.failure();
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
    Sequence sequence(*this);
    sequence.end(countItem(node, path));
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
    Sequence sequence(*this);
    sequence.end(readKeys(node, format.keys.first(format.keys.size() - 1), path));
    sequence.end(checkNesting(node, path));
    if (node.find(contents.front().name))
        sequence.begin(quoted(contents.front().name), true);
    readKeys(node, contents, path);
    --nestedBoxes_;
}

// Once there are too many, all further ones are left out.
ReaderCheck::Failure ReaderCheck::countItem(const JsonNode& item, const QString& path)
{
    if (lost_ > 0 || ++items_ <= MaximumItems())
        return std::nullopt;
    if (!tooManyItems_) {
        tooManyItems_ = fail(Rule::TooManyItems, item, path,
                             QStringLiteral("the card has more than %1 items; lost: this one, and "
                                            "all that follow")
                                 .arg(MaximumItems()));
        findings_[*tooManyItems_].range.end = item.range.begin + 1;
    }
    return tooManyItems_;
}

ReaderCheck::Failure ReaderCheck::checkNesting(const JsonNode& box, const QString& path)
{
    if (lost_ > 0 || nestedBoxes_ <= MaximumNestedBoxes())
        return std::nullopt;
    const std::size_t index =
        fail(Rule::NestedTooDeep, box, path,
             QStringLiteral("boxes are nested deeper than %1 levels").arg(MaximumNestedBoxes()));
    // All of the box would be a long range.
    findings_[index].range.end = box.range.begin + 1;
    return index;
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
    losses_.addValue(index);
    return index;
}

void ReaderCheck::checkConversion(const PlixFormatKey& key, const JsonNode& value,
                                  const QString& path)
{
    findings_.push_back({Rule::ConvertedKind,
                         value.range,
                         path,
                         QStringLiteral("%1 must be %2; %3 counts as %4")
                             .arg(quoted(key.name), kindName(key.type), found(value),
                                  convertedValue(key.type, value)),
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

QString ReaderCheck::found(const JsonNode& value) const
{
    if (value.isObject())
        return QStringLiteral("an object");
    if (value.isArray())
        return QStringLiteral("an array");
    return excerpt(text_, value.range);
}

} // namespace plix::tool
