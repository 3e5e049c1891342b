#include "check/JsonParser.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace plix::tool {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isWordCharacter(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

bool isHighSurrogate(char32_t c)
{
    return c >= 0xD800 && c < 0xDC00;
}

bool isLowSurrogate(char32_t c)
{
    return c >= 0xDC00 && c < 0xE000;
}

void append(std::string& text, char32_t character)
{
    text += QString::fromUcs4(&character, 1).toStdString();
}

} // namespace

JsonParser::JsonParser(const QByteArray& text, Findings& findings)
    : text_(text)
    , findings_(findings)
{
}

std::optional<JsonNode> JsonParser::parse()
{
    checkUtf8();
    try {
        skipBlanksAndComments();
        JsonNode root = value();
        skipBlanksAndComments();
        if (!atEnd())
            note(Rule::TextAfterCard, {offset_, text_.size()},
                 QStringLiteral("the card ends before this text"));
        return root;
    } catch (const Stop&) {
        return std::nullopt;
    }
}

JsonNode JsonParser::value()
{
    switch (current()) {
    case '{':
        return object();
    case '[':
        return array();
    case '"':
        return string();
    default:
        return current() == '-' || isDigit(current()) ? number() : word();
    }
}

JsonNode JsonParser::object()
{
    JsonNode node {JsonNode::Kind::Object, {offset_, offset_}, false, 0, {}, {}, {}};
    if (++depth_ > kMaximumDepth)
        stop({offset_, offset_ + 1},
             QStringLiteral("the JSON is nested deeper than %1 levels").arg(kMaximumDepth));
    ++offset_;
    skipBlanksAndComments();
    if (!skip('}')) {
        do {
            node.members.push_back(member());
        } while (nextFollows('}'));
    }
    --depth_;
    node.range.end = offset_;
    checkNames(node);
    return node;
}

JsonNode JsonParser::array()
{
    JsonNode node {JsonNode::Kind::Array, {offset_, offset_}, false, 0, {}, {}, {}};
    if (++depth_ > kMaximumDepth)
        stop({offset_, offset_ + 1},
             QStringLiteral("the JSON is nested deeper than %1 levels").arg(kMaximumDepth));
    ++offset_;
    skipBlanksAndComments();
    if (!skip(']')) {
        do {
            node.elements.push_back(value());
        } while (nextFollows(']'));
    }
    --depth_;
    node.range.end = offset_;
    return node;
}

JsonMember JsonParser::member()
{
    if (current() != '"')
        stopHere(QStringLiteral("a key in double quotes"));
    JsonMember member;
    member.nameRange.begin = offset_;
    member.name = stringText();
    member.nameRange.end = offset_;
    skipBlanksAndComments();
    if (!skip(':'))
        stopHere(QStringLiteral("a colon after the key"));
    skipBlanksAndComments();
    member.value = value();
    return member;
}

bool JsonParser::nextFollows(char closing)
{
    skipBlanksAndComments();
    if (skip(closing))
        return false;
    const int comma = offset_;
    if (!skip(',')) {
        if (atEnd() || !startsValue())
            stopHere(QStringLiteral("a comma or \"%1\"").arg(QLatin1Char(closing)));
        note(Rule::Syntax, {offset_, offset_ + 1},
             QStringLiteral("a comma is missing before this"));
        return true;
    }
    skipBlanksAndComments();
    if (!skip(closing))
        return true;
    note(Rule::Syntax, {comma, comma + 1},
         QStringLiteral("this comma is too many: nothing follows it"));
    return false;
}

bool JsonParser::startsValue() const
{
    const char c = current();
    return c == '"' || c == '{' || c == '[';
}

JsonNode JsonParser::string()
{
    JsonNode node {JsonNode::Kind::String, {offset_, offset_}, false, 0, {}, {}, {}};
    node.text = stringText();
    node.range.end = offset_;
    return node;
}

std::string JsonParser::stringText()
{
    const int begin = offset_++;
    std::string text;
    while (!skip('"')) {
        if (atEnd() || current() == '\n')
            stop({begin, offset_}, QStringLiteral("the closing quote is missing"));
        if (current() == '\\')
            escape(text);
        else if (static_cast<unsigned char>(current()) < 0x20) {
            note(Rule::Syntax, {offset_, offset_ + 1},
                 QStringLiteral("a control character must be written as \\u%1")
                     .arg(static_cast<int>(current()), 4, 16, QLatin1Char('0')));
            text += text_.at(offset_++);
        } else
            text += text_.at(offset_++);
    }
    return text;
}

void JsonParser::escape(std::string& text)
{
    static constexpr std::string_view kLetters = "\"\\/bfnrt";
    static constexpr std::string_view kCharacters = "\"\\/\b\f\n\r\t";
    const int begin = offset_++;
    if (skip('u')) {
        offset_ = begin;
        append(text, unicodeEscape());
        return;
    }
    const std::size_t letter = kLetters.find(current());
    if (atEnd() || letter == std::string_view::npos)
        stop({begin, offset_ + 1},
             QStringLiteral("no such escape; a backslash is written \"\\\\\""));
    text += kCharacters[letter];
    ++offset_;
}

char32_t JsonParser::unicodeEscape()
{
    const int begin = offset_;
    const std::optional<char32_t> first = hexDigits();
    if (!first)
        stop({begin, offset_}, QStringLiteral("four hexadecimal digits must follow \"\\u\""));
    if (!isHighSurrogate(*first) && !isLowSurrogate(*first))
        return *first;
    const int middle = offset_;
    const std::optional<char32_t> second = isHighSurrogate(*first) ? hexDigits() : std::nullopt;
    if (second && isLowSurrogate(*second))
        return 0x10000 + ((*first - 0xD800) << 10) + (*second - 0xDC00);
    offset_ = middle;
    note(Rule::LoneSurrogate, {begin, offset_},
         QStringLiteral("this is half of a character; the other half is missing"));
    return kReplacement;
}

// Of "\uXXXX".
std::optional<char32_t> JsonParser::hexDigits()
{
    constexpr int kLength = 6;
    const QByteArray escape = text_.mid(offset_, kLength);
    const QByteArray digits = escape.mid(2);
    const bool hasDigits = std::all_of(digits.begin(), digits.end(), [](char c) {
        return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
    });
    if (escape.size() != kLength || !escape.startsWith("\\u") || !hasDigits)
        return std::nullopt;
    offset_ += kLength;
    return static_cast<char32_t>(digits.toUInt(nullptr, 16));
}

JsonNode JsonParser::number()
{
    JsonNode node {JsonNode::Kind::Number, {offset_, offset_}, false, 0, {}, {}, {}};
    skip('-');
    const int first = offset_;
    skipDigits();
    const bool hasZeroInFront = offset_ - first > 1 && text_.at(first) == '0';
    if (skip('.'))
        skipDigits();
    if (skip('e') || skip('E')) {
        if (!skip('+'))
            skip('-');
        skipDigits();
    }
    node.range.end = offset_;
    bool isNumber = false;
    node.number = text_.mid(node.range.begin, offset_ - node.range.begin).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(node.number) || isWordCharacter(current()))
        stop(node.range, QStringLiteral("this is no number"));
    if (hasZeroInFront)
        note(Rule::Syntax, node.range, QStringLiteral("a number must not begin with 0"));
    return node;
}

void JsonParser::skipDigits()
{
    if (!isDigit(current()))
        stopHere(QStringLiteral("a digit"));
    while (isDigit(current()))
        ++offset_;
}

JsonNode JsonParser::word()
{
    JsonNode node;
    node.range.begin = offset_;
    while (isWordCharacter(current()))
        ++offset_;
    node.range.end = offset_;
    const QByteArray word = text_.mid(node.range.begin, offset_ - node.range.begin);
    if (word == "true" || word == "false") {
        node.kind = JsonNode::Kind::Boolean;
        node.boolean = word == "true";
    } else if (word != "null") {
        offset_ = node.range.begin;
        stopHere(QStringLiteral("a value"));
    }
    return node;
}

void JsonParser::checkNames(JsonNode& object)
{
    std::vector<JsonMember*> members;
    for (JsonMember& member : object.members)
        members.push_back(&member);
    std::stable_sort(members.begin(), members.end(),
                     [](const JsonMember* a, const JsonMember* b) { return a->name < b->name; });
    for (std::size_t i = 1; i < members.size(); ++i) {
        const JsonMember& last = *members[i];
        members[i - 1]->isReplaced = members[i - 1]->name == last.name;
        if (members[i - 1]->isReplaced)
            note(Rule::DuplicateKey, last.nameRange,
                 QStringLiteral("\"%1\" is there twice; only the last one counts")
                     .arg(QString::fromStdString(last.name)));
    }
}

// Comments and names count, too: editors and parsers disagree about such files.
void JsonParser::checkUtf8()
{
    for (int i = 0; i < text_.size();) {
        const auto lead = static_cast<unsigned char>(text_.at(i));
        if (lead < 0x80) {
            ++i;
            continue;
        }
        const int length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
        const QByteArray bytes = text_.mid(i, length);
        if (bytes.size() != length || QString::fromUtf8(bytes).toUtf8() != bytes
            || QString::fromUtf8(bytes).contains(QChar::ReplacementCharacter)
                != (bytes == "\xEF\xBF\xBD")) {
            note(Rule::InvalidUtf8, {i, i + 1},
                 QStringLiteral("the byte 0x%1 is not UTF-8; save the file as UTF-8")
                     .arg(static_cast<unsigned>(lead), 2, 16, QLatin1Char('0')));
            return;
        }
        i += length;
    }
}

void JsonParser::skipBlanksAndComments()
{
    static const QByteArray blanks = " \t\r\n";
    for (;;) {
        while (!atEnd() && blanks.contains(current()))
            ++offset_;
        const QByteArray start = current() == '/' ? text_.mid(offset_, 2) : QByteArray();
        const bool isBlock = start == "/*";
        if (!isBlock && start != "//")
            return;
        const int closing = text_.indexOf(isBlock ? "*/" : "\n", offset_ + 2);
        if (closing < 0 && isBlock)
            stop({offset_, offset_ + 2}, QStringLiteral("this comment does not end"));
        offset_ = closing < 0 ? text_.size() : closing + (isBlock ? 2 : 1);
    }
}

bool JsonParser::skip(char c)
{
    if (atEnd() || current() != c)
        return false;
    ++offset_;
    return true;
}

void JsonParser::note(Rule rule, TextRange range, const QString& message)
{
    findings_.push_back({rule, range, {}, message, {}, {}, {}});
}

void JsonParser::stop(TextRange range, const QString& message)
{
    note(Rule::Syntax, range, message);
    throw Stop();
}

void JsonParser::stopHere(const QString& needed)
{
    if (atEnd())
        stop({offset_, offset_}, QStringLiteral("the text ends, but %1 is needed").arg(needed));
    stop({offset_, offset_ + 1}, QStringLiteral("%1 is needed here").arg(needed));
}

} // namespace plix::tool
