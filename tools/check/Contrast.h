#pragma once

#include <QImage>
#include <QPoint>
#include <QRect>
#include <QRgb>

#include <optional>

namespace plix::tool {

constexpr double kMaximumContrast = 21;

struct Contrast {
    double ratio = 1;
    bool isOnDark = false; // the letters are lighter than what is behind them
    QRgb color = 0; // of the letters
    QRgb behind = 0;
};

// The contrast ratio of WCAG 2.2, from 1 to 21. Ignores transparency.
double contrastRatio(QRgb one, QRgb other);

// The contrast of a word with what is behind it. `letters` is transparent between the
// letters; its corner is at `offset` in `behind`. Nothing for words of several colours,
// such as emoji. `color`: as if the word had that one.
std::optional<Contrast> wordContrast(const QImage& letters, const QRect& word, const QImage& behind,
                                     const QPoint& offset,
                                     const std::optional<QRgb>& color = std::nullopt);

// The contrast of a label with its plate, which has most of the pixels.
Contrast labelContrast(const QImage& image, const QRect& area);

} // namespace plix::tool
