#pragma once

#include <QString>

#include <string_view>

namespace plix::tool {

// The texts of the card format are UTF-8.
inline QString toQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

} // namespace plix::tool
