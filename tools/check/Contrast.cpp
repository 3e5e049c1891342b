#include "check/Contrast.h"

#include <QHash>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace plix::tool {
namespace {

double channelLuminance(int channel)
{
    const double share = channel / 255.0;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(QRgb color)
{
    static const std::array<double, 256> channels = [] {
        std::array<double, 256> all {};
        for (int i = 0; i < 256; ++i)
            all.at(static_cast<std::size_t>(i)) = channelLuminance(i);
        return all;
    }();
    const auto at = [](int channel) { return channels[static_cast<std::size_t>(channel)]; };
    return 0.2126 * at(qRed(color)) + 0.7152 * at(qGreen(color)) + 0.0722 * at(qBlue(color));
}

// A premultiplied colour over an opaque one.
QRgb over(QRgb front, QRgb behind)
{
    const int rest = 255 - qAlpha(front);
    const auto mix = [rest](int above, int below) {
        return std::min(255, above + below * rest / 255);
    };
    return qRgb(mix(qRed(front), qRed(behind)), mix(qGreen(front), qGreen(behind)),
                mix(qBlue(front), qBlue(behind)));
}

template <typename Function>
void forEachPixel(const QImage& image, const QRect& area, const Function& function)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* const pixels = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = area.left(); x <= area.right(); ++x)
            function(x, y, pixels[x]);
    }
}

struct CommonColor {
    QRgb color = 0;
    int count = 0;
};

CommonColor mostCommon(const QHash<QRgb, int>& counts)
{
    const auto most = std::max_element(counts.begin(), counts.end());
    return most == counts.end() ? CommonColor() : CommonColor {most.key(), most.value()};
}

// The pixels that letters cover wholly have the colour of the text.
CommonColor letterColor(const QImage& letters, const QRect& word)
{
    int maximum = 0;
    forEachPixel(letters, word,
                 [&](int, int, QRgb pixel) { maximum = std::max(maximum, qAlpha(pixel)); });
    QHash<QRgb, int> counts;
    int covered = 0;
    forEachPixel(letters, word, [&](int, int, QRgb pixel) {
        if (qAlpha(pixel) == maximum) {
            ++counts[pixel];
            ++covered;
        }
    });
    const CommonColor common = mostCommon(counts);
    // Spans may have colours of their own, but a picture has many.
    constexpr int kMaximumColors = 4;
    const bool isOneColor =
        common.count * 2 > covered && counts.size() <= kMaximumColors && maximum > 0;
    return isOneColor ? common : CommonColor();
}

Contrast contrastOf(QRgb letters, QRgb behind)
{
    return {contrastRatio(letters, behind), luminance(letters) > luminance(behind), letters,
            behind};
}

} // namespace

double contrastRatio(QRgb one, QRgb other)
{
    constexpr double kFlare = 0.05;
    const double a = luminance(one) + kFlare;
    const double b = luminance(other) + kFlare;
    return std::max(a, b) / std::min(a, b);
}

std::optional<Contrast> wordContrast(const QImage& letters, const QRect& word, const QImage& behind,
                                     const QPoint& offset, const std::optional<QRgb>& color)
{
    const CommonColor drawn = letterColor(letters, word);
    std::vector<Contrast> contrasts;
    forEachPixel(letters, word, [&](int x, int y, QRgb pixel) {
        if (drawn.count == 0 || pixel != drawn.color)
            return;
        const QRgb below = behind.pixel(x + offset.x(), y + offset.y());
        contrasts.push_back(contrastOf(color.value_or(over(pixel, below)), below));
    });
    if (contrasts.empty())
        return std::nullopt;
    // Of a word over a picture, a quarter may be hard to read.
    const auto quarter = contrasts.begin() + static_cast<std::ptrdiff_t>(contrasts.size() / 4);
    std::nth_element(contrasts.begin(), quarter, contrasts.end(),
                     [](const Contrast& a, const Contrast& b) { return a.ratio < b.ratio; });
    return *quarter;
}

Contrast labelContrast(const QImage& image, const QRect& area)
{
    QHash<QRgb, int> counts;
    forEachPixel(image, area, [&](int, int, QRgb pixel) { ++counts[pixel]; });
    const QRgb plate = mostCommon(counts).color;
    // Without the corners, which show what is behind the button.
    const int insetX = area.width() / 8;
    const int insetY = area.height() / 8;
    Contrast best;
    forEachPixel(image, area.adjusted(insetX, insetY, -insetX, -insetY), [&](int, int, QRgb pixel) {
        const Contrast contrast = contrastOf(pixel, plate);
        if (contrast.ratio > best.ratio)
            best = contrast;
    });
    return best;
}

} // namespace plix::tool
