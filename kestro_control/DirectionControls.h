#pragma once

#include <QChar>

namespace kestro {

inline constexpr QChar kPopDirectionalFormatting(0x202C);
inline constexpr QChar kFirstStrongIsolate(0x2068);
inline constexpr QChar kPopDirectionalIsolate(0x2069);

} // namespace kestro
