#pragma once

#include <QRgb>

#include <functional>
#include <optional>

namespace plix::tool {

using IsGoodColor = std::function<bool(QRgb)>;

// The shade nearest to `color` for which `isGood` is true, a lighter or a darker one.
std::optional<QRgb> betterShade(QRgb color, const IsGoodColor& isGood);

// For a text without a colour: a colour for texts for which `isGood` is true.
std::optional<QRgb> betterDefault(const IsGoodColor& isGood);

} // namespace plix::tool
