#include "view/TextPositions.h"

#include <algorithm>

namespace plix::tool {
namespace {

// The units that begin with this byte of UTF-8.
int unitsOf(char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    const bool continuesCharacter = (value & 0xC0) == 0x80;
    const bool isFourBytesLong = value >= 0xF0;
    if (continuesCharacter)
        return 0;
    return isFourBytesLong ? 2 : 1;
}

} // namespace

TextPositions::TextPositions(const QByteArray& text)
{
    characters_.reserve(text.size() + 1);
    for (const char byte : text)
        characters_.append(characters_.last() + unitsOf(byte));
}

int TextPositions::toCharacter(int byte) const
{
    return characters_.at(std::clamp(byte, 0, characters_.size() - 1));
}

int TextPositions::toByte(int character) const
{
    // The bytes that continue a character have the count of the next one.
    const auto after = std::upper_bound(characters_.begin(), characters_.end(), character);
    return std::max(static_cast<int>(after - characters_.begin()) - 1, 0);
}

} // namespace plix::tool
