#include "check/JsonString.h"

#include "check/JsonScanner.h"

#include <QString>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace plix::tool {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isHighSurrogate(char32_t c)
{
    return c >= 0xD800 && c < 0xDC00;
}

bool isLowSurrogate(char32_t c)
{
    return c >= 0xDC00 && c < 0xE000;
}

class StringReader {
public:
    explicit StringReader(JsonScanner& scanner)
        : scanner_(scanner)
    {
    }

    std::string read();

private:
    void readCharacter();
    void readEscape();
    char32_t unicodeEscape();
    std::optional<char32_t> hexDigits();

    JsonScanner& scanner_;
    std::string text_;
};

std::string StringReader::read()
{
    const int begin = scanner_.offset();
    scanner_.advance();
    while (!scanner_.skip('"')) {
        if (scanner_.atEnd() || scanner_.current() == '\n')
            scanner_.stop({begin, scanner_.offset()},
                          QStringLiteral("the closing quote is missing"));
        if (scanner_.current() == '\\')
            readEscape();
        else
            readCharacter();
    }
    return text_;
}

void StringReader::readCharacter()
{
    const char c = scanner_.current();
    if (static_cast<unsigned char>(c) < 0x20)
        scanner_.note(Rule::Syntax, {scanner_.offset(), scanner_.offset() + 1},
                      QStringLiteral("a control character must be written as \\u%1")
                          .arg(static_cast<int>(c), 4, 16, QLatin1Char('0')));
    text_ += c;
    scanner_.advance();
}

void StringReader::readEscape()
{
    static constexpr std::string_view kLetters = "\"\\/bfnrt";
    static constexpr std::string_view kCharacters = "\"\\/\b\f\n\r\t";
    if (scanner_.next(2) == "\\u") {
        const char32_t character = unicodeEscape();
        text_ += QString::fromUcs4(&character, 1).toStdString();
        return;
    }
    const int begin = scanner_.offset();
    scanner_.advance();
    const std::size_t letter = kLetters.find(scanner_.current());
    if (scanner_.atEnd() || letter == std::string_view::npos)
        scanner_.stop({begin, scanner_.offset() + 1},
                      QStringLiteral("no such escape; a backslash is written \"\\\\\""));
    text_ += kCharacters[letter];
    scanner_.advance();
}

char32_t StringReader::unicodeEscape()
{
    const int begin = scanner_.offset();
    const std::optional<char32_t> first = hexDigits();
    if (!first)
        scanner_.stop({begin, begin + 2},
                      QStringLiteral("four hexadecimal digits must follow \"\\u\""));
    if (!isHighSurrogate(*first) && !isLowSurrogate(*first))
        return *first;
    const int middle = scanner_.offset();
    const std::optional<char32_t> second = isHighSurrogate(*first) ? hexDigits() : std::nullopt;
    if (second && isLowSurrogate(*second))
        return 0x10000 + ((*first - 0xD800) << 10) + (*second - 0xDC00);
    scanner_.goTo(middle);
    scanner_.note(Rule::LoneSurrogate, {begin, middle},
                  QStringLiteral("this is half of a character; the other half is missing"));
    return kReplacement;
}

// Of "\uXXXX".
std::optional<char32_t> StringReader::hexDigits()
{
    constexpr int kLength = 6;
    const QByteArray escape = scanner_.next(kLength);
    const QByteArray digits = escape.mid(2);
    if (escape.size() != kLength || !escape.startsWith("\\u")
        || !std::all_of(digits.begin(), digits.end(), &isHexDigit))
        return std::nullopt;
    scanner_.advance(kLength);
    return static_cast<char32_t>(digits.toUInt(nullptr, 16));
}

} // namespace

std::string readJsonString(JsonScanner& scanner)
{
    return StringReader(scanner).read();
}

} // namespace plix::tool
