#include "check/JsonParser.h"

#include "check/JsonString.h"
#include "check/Utf8Check.h"

#include <QString>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace plix::tool {
namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool isWordCharacter(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

} // namespace

JsonParser::JsonParser(const QByteArray& text, Findings& findings)
    : text_(text)
    , scanner_(text, findings)
{
}

std::optional<JsonNode> JsonParser::parse()
{
    checkUtf8();
    try {
        scanner_.skipBlanksAndComments();
        JsonNode root = value();
        scanner_.skipBlanksAndComments();
        if (!scanner_.atEnd())
            scanner_.note(Rule::TextAfterCard, {scanner_.offset(), text_.size()},
                          QStringLiteral("the card ends before this text"));
        return root;
    } catch (const JsonScanner::Stop&) {
        return std::nullopt;
    }
}

// Comments and names count, too: editors and parsers disagree about such files.
void JsonParser::checkUtf8()
{
    const std::optional<int> bad = findBadUtf8(text_);
    if (!bad)
        return;
    const auto byte = static_cast<unsigned char>(text_.at(*bad));
    scanner_.note(Rule::InvalidUtf8, {*bad, *bad + 1},
                  QStringLiteral("the byte 0x%1 is not UTF-8; save the file as UTF-8")
                      .arg(static_cast<unsigned>(byte), 2, 16, QLatin1Char('0')));
}

JsonNode JsonParser::value()
{
    const char c = scanner_.current();
    switch (c) {
    case '{':
        return object();
    case '[':
        return array();
    case '"':
        return string();
    default:
        return c == '-' || isDigit(c) ? number() : word();
    }
}

JsonNode JsonParser::begin(JsonNode::Kind kind) const
{
    JsonNode node;
    node.kind = kind;
    node.range.begin = scanner_.offset();
    return node;
}

JsonNode JsonParser::object()
{
    JsonNode node = begin(JsonNode::Kind::Object);
    enter();
    if (!scanner_.skip('}')) {
        do {
            node.members.push_back(member());
        } while (nextFollows('}'));
    }
    leave(node);
    checkNames(node);
    return node;
}

JsonNode JsonParser::array()
{
    JsonNode node = begin(JsonNode::Kind::Array);
    enter();
    if (!scanner_.skip(']')) {
        do {
            node.elements.push_back(value());
        } while (nextFollows(']'));
    }
    leave(node);
    return node;
}

void JsonParser::enter()
{
    const int begin = scanner_.offset();
    if (++depth_ > kMaximumDepth)
        scanner_.stop(
            {begin, begin + 1},
            QStringLiteral("the JSON is nested deeper than %1 levels").arg(kMaximumDepth));
    scanner_.advance();
    scanner_.skipBlanksAndComments();
}

void JsonParser::leave(JsonNode& node)
{
    --depth_;
    node.range.end = scanner_.offset();
}

JsonMember JsonParser::member()
{
    if (scanner_.current() != '"')
        scanner_.stopHere(QStringLiteral("a key in double quotes"));
    JsonMember member;
    member.nameRange.begin = scanner_.offset();
    member.name = readJsonString(scanner_);
    member.nameRange.end = scanner_.offset();
    scanner_.skipBlanksAndComments();
    if (!scanner_.skip(':'))
        scanner_.stopHere(QStringLiteral("a colon after the key"));
    scanner_.skipBlanksAndComments();
    member.value = value();
    return member;
}

bool JsonParser::nextFollows(char closing)
{
    scanner_.skipBlanksAndComments();
    if (scanner_.skip(closing))
        return false;
    const int comma = scanner_.offset();
    if (!scanner_.skip(',')) {
        if (scanner_.atEnd() || !startsValue())
            scanner_.stopHere(QStringLiteral("a comma or \"%1\"").arg(QLatin1Char(closing)));
        scanner_.note(Rule::Syntax, {comma, comma + 1},
                      QStringLiteral("a comma is missing before this"));
        return true;
    }
    scanner_.skipBlanksAndComments();
    if (!scanner_.skip(closing))
        return true;
    scanner_.note(Rule::Syntax, {comma, comma + 1},
                  QStringLiteral("this comma is too many: nothing follows it"));
    return false;
}

bool JsonParser::startsValue() const
{
    const char c = scanner_.current();
    return c == '"' || c == '{' || c == '[';
}

JsonNode JsonParser::string()
{
    JsonNode node = begin(JsonNode::Kind::String);
    node.text = readJsonString(scanner_);
    node.range.end = scanner_.offset();
    return node;
}

JsonNode JsonParser::number()
{
    JsonNode node = begin(JsonNode::Kind::Number);
    scanner_.skip('-');
    const int first = scanner_.offset();
    skipDigits();
    const bool hasZeroInFront = scanner_.offset() - first > 1 && text_.at(first) == '0';
    if (scanner_.skip('.'))
        skipDigits();
    if (scanner_.skip('e') || scanner_.skip('E')) {
        if (!scanner_.skip('+'))
            scanner_.skip('-');
        skipDigits();
    }
    node.range.end = scanner_.offset();
    bool isNumber = false;
    node.number = scanner_.since(node.range.begin).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(node.number) || isWordCharacter(scanner_.current()))
        scanner_.stop(node.range, QStringLiteral("this is no number"));
    if (hasZeroInFront)
        scanner_.note(Rule::Syntax, node.range, QStringLiteral("a number must not begin with 0"));
    return node;
}

void JsonParser::skipDigits()
{
    if (!isDigit(scanner_.current()))
        scanner_.stopHere(QStringLiteral("a digit"));
    while (isDigit(scanner_.current()))
        scanner_.advance();
}

JsonNode JsonParser::word()
{
    JsonNode node = begin(JsonNode::Kind::Null);
    while (isWordCharacter(scanner_.current()))
        scanner_.advance();
    node.range.end = scanner_.offset();
    const QByteArray word = scanner_.since(node.range.begin);
    if (word == "true" || word == "false") {
        node.kind = JsonNode::Kind::Boolean;
        node.boolean = word == "true";
    } else if (word != "null") {
        scanner_.goTo(node.range.begin);
        scanner_.stopHere(QStringLiteral("a value"));
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
            scanner_.note(Rule::DuplicateKey, last.nameRange,
                          QStringLiteral("\"%1\" is there twice; only the last one counts")
                              .arg(QString::fromStdString(last.name)));
    }
}

} // namespace plix::tool
