#include "check/BetterColor.h"

#include <algorithm>
#include <array>

namespace plix::tool {
namespace {

constexpr QRgb kBlack = qRgb(0, 0, 0);
constexpr QRgb kWhite = qRgb(255, 255, 255);
constexpr QRgb kDarkText = qRgb(0x1F, 0x2A, 0x37);
constexpr int kSteps = 20;

QRgb mixed(QRgb color, QRgb other, int step)
{
    const auto mix = [step](int from, int to) { return from + (to - from) * step / kSteps; };
    return qRgb(mix(qRed(color), qRed(other)), mix(qGreen(color), qGreen(other)),
                mix(qBlue(color), qBlue(other)));
}

} // namespace

std::optional<QRgb> betterShade(QRgb color, const IsGoodColor& isGood)
{
    for (int step = 1; step <= kSteps; ++step) {
        for (const QRgb end : {kBlack, kWhite}) {
            const QRgb shade = mixed(color, end, step);
            if (isGood(shade))
                return shade;
        }
    }
    return std::nullopt;
}

std::optional<QRgb> betterDefault(const IsGoodColor& isGood)
{
    constexpr std::array kColors {kDarkText, kWhite, kBlack};
    const auto* const found = std::find_if(kColors.begin(), kColors.end(), isGood);
    return found == kColors.end() ? std::nullopt : std::optional(*found);
}

} // namespace plix::tool
