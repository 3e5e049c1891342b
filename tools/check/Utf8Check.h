#pragma once

#include <QByteArray>

#include <optional>

namespace plix::tool {

// The offset of the first byte that is not UTF-8.
std::optional<int> findBadUtf8(const QByteArray& text);

} // namespace plix::tool
