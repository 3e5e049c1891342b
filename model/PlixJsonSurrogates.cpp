#include "model/PlixJsonSurrogates.h"

#include <charconv>
#include <cstddef>
#include <system_error>

namespace plix {

namespace {

// "\u" and four digits.
constexpr std::size_t kEscapeLength = 6;
constexpr std::size_t kDigits = 4;

// The code unit of the escape at `at`; 0 if there is none.
unsigned EscapedUnitAt(std::string_view json, std::size_t at)
{
    if (at + kEscapeLength > json.size() || json[at] != '\\' || json[at + 1] != 'u')
        return 0;
    const char* const end = json.data() + at + kEscapeLength;
    unsigned unit = 0;
    const auto [read, error] = std::from_chars(end - kDigits, end, unit, 16);
    return error == std::errc() && read == end ? unit : 0;
}

bool IsHighSurrogate(unsigned unit)
{
    return unit >= 0xD800 && unit < 0xDC00;
}

bool IsLowSurrogate(unsigned unit)
{
    return unit >= 0xDC00 && unit < 0xE000;
}

} // namespace

bool MayHaveSurrogates(std::string_view json)
{
    return json.find("\\ud") != json.npos || json.find("\\uD") != json.npos;
}

std::string WithoutLoneSurrogates(std::string json)
{
    constexpr std::size_t kEscapedCharacter = 2; // such as "\\"
    std::size_t at = json.find('\\');
    while (at != json.npos) {
        const unsigned unit = EscapedUnitAt(json, at);
        const bool isPair =
            IsHighSurrogate(unit) && IsLowSurrogate(EscapedUnitAt(json, at + kEscapeLength));
        if (!isPair && (IsHighSurrogate(unit) || IsLowSurrogate(unit)))
            json.replace(at + kEscapeLength - kDigits, kDigits, "FFFD");
        at = json.find('\\', at + (isPair ? 2 * kEscapeLength : kEscapedCharacter));
    }
    return json;
}

} // namespace plix
