#include "model/PlixJsonReals.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string_view>
#include <system_error>

namespace plix {

namespace {

bool IsDigit(char c)
{
    return c >= '0' && c <= '9';
}

bool IsAnyAt(std::string_view text, std::size_t at, std::string_view characters)
{
    return at < text.size() && characters.find(text[at]) != std::string_view::npos;
}

std::size_t SkipDigits(std::string_view text, std::size_t at)
{
    while (at < text.size() && IsDigit(text[at]))
        ++at;
    return at;
}

// ----- The end of the token that begins at `begin`, by the rules of the parser

std::size_t EndOfString(std::string_view text, std::size_t begin)
{
    std::size_t at = begin + 1;
    while (at < text.size() && text[at] != '"')
        at += text[at] == '\\' ? 2U : 1U;
    return std::min(at + 1, text.size());
}

std::size_t EndOfComment(std::string_view text, std::size_t begin)
{
    if (IsAnyAt(text, begin + 1, "/")) {
        const std::size_t lineEnd = text.find_first_of("\n\r", begin);
        return lineEnd == std::string_view::npos ? text.size() : lineEnd + 1;
    }
    if (!IsAnyAt(text, begin + 1, "*"))
        return begin + 1;
    const std::size_t closing = text.find("*/", begin + 2);
    return closing == std::string_view::npos ? text.size() : closing + 2;
}

std::size_t EndOfNumber(std::string_view text, std::size_t begin)
{
    std::size_t end = SkipDigits(text, begin + 1);
    if (IsAnyAt(text, end, "."))
        end = SkipDigits(text, end + 1);
    if (!IsAnyAt(text, end, "eE"))
        return end;
    const bool hasSign = IsAnyAt(text, end + 1, "+-");
    return SkipDigits(text, end + (hasSign ? 2 : 1));
}

bool BeginsNumber(char c)
{
    return c == '-' || IsDigit(c);
}

std::size_t EndOfToken(std::string_view text, std::size_t begin)
{
    if (text[begin] == '"')
        return EndOfString(text, begin);
    if (text[begin] == '/')
        return EndOfComment(text, begin);
    return BeginsNumber(text[begin]) ? EndOfNumber(text, begin) : begin + 1;
}

// ----- Numbers

// The value of "12", "+12" or "-12". A value that is too large is replaced by one
// that is still far larger than the length of any text.
std::int64_t ToExponent(std::string_view digits)
{
    constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max() / 2;
    const bool isNegative = digits.front() == '-';
    if (!IsDigit(digits.front()))
        digits.remove_prefix(1);
    std::int64_t value = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    value = read.ec == std::errc::result_out_of_range ? kLargest : std::min(value, kLargest);
    return isNegative ? -value : value;
}

std::string WithoutPoint(std::string_view number)
{
    const std::size_t point = number.find('.');
    const std::size_t fractionEnd = SkipDigits(number, point + 1);
    const std::string_view fraction = number.substr(point + 1, fractionEnd - point - 1);
    const std::string_view exponent = number.substr(std::min(fractionEnd + 1, number.size()));

    std::string result(number.substr(0, point));
    result += fraction;
    result += 'e';
    const bool isUnfinished = fractionEnd < number.size() && !IsDigit(number.back());
    if (isUnfinished)
        return result.append(exponent);
    const std::int64_t power = exponent.empty() ? 0 : ToExponent(exponent);
    return result + std::to_string(power - static_cast<std::int64_t>(fraction.size()));
}

// ----- Numbers in a text

bool HasPointInNumber(std::string_view json)
{
    for (std::size_t at = json.find('.', 1); at != json.npos; at = json.find('.', at + 1)) {
        if (BeginsNumber(json[at - 1]))
            return true;
    }
    return false;
}

bool HasPointOutsideOfStrings(std::string_view json)
{
    for (std::size_t at = 0; at < json.size();) {
        switch (json[at]) {
        case '"':
            at = EndOfString(json, at);
            break;
        case '/':
            at = EndOfComment(json, at);
            break;
        case '.':
            return true;
        default:
            ++at;
        }
    }
    return false;
}

} // namespace

bool MayHaveReals(std::string_view json)
{
    // The first is much faster, and few cards have a number with a point in a string.
    return HasPointInNumber(json) && HasPointOutsideOfStrings(json);
}

std::string WithoutDecimalPoints(std::string_view text)
{
    std::string result;
    result.reserve(text.size());
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = EndOfToken(text, begin);
        const std::string_view token = text.substr(begin, end - begin);
        const bool isReal = BeginsNumber(token.front()) && token.find('.') != token.npos;
        if (isReal)
            result += WithoutPoint(token);
        else
            result += token;
        begin = end;
    }
    return result;
}

} // namespace plix
