#include "check/TextPlaces.h"

#include <algorithm>

namespace plix::tool {

TextPlaces::TextPlaces(const QByteArray& text)
    : text_(text)
{
}

TextPlace TextPlaces::at(int offset)
{
    const int end = std::min(offset, text_.size());
    if (end < offset_) {
        offset_ = 0;
        place_ = {};
    }
    for (; offset_ < end; ++offset_) {
        const char c = text_.at(offset_);
        const bool continuesCharacter = (static_cast<unsigned char>(c) & 0xC0) == 0x80;
        if (c == '\n')
            place_ = {place_.line + 1, 1};
        else if (!continuesCharacter)
            ++place_.column;
    }
    return place_;
}

} // namespace plix::tool
