#pragma once

#include <QImage>
#include <QRect>

#include <algorithm>

namespace plix::test {

// The smallest rectangle around the pixels of `area` for which `isMeant` returns true, in the
// image's pixels; empty when there are none. `isMeant` gets pixels as the image stores them, in
// 32 bits.
template <typename Predicate>
QRect boundsOfPixels(const QImage& image, const QRect& area, Predicate isMeant)
{
    Q_ASSERT(image.depth() == 32);
    QRect bounds;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        const QRgb* const end = line + area.right() + 1;
        const QRgb* const first = std::find_if(line + area.left(), end, isMeant);
        if (first == end)
            continue;
        const QRgb* last = end - 1;
        while (!isMeant(*last))
            --last;
        bounds |= QRect(QPoint(int(first - line), y), QPoint(int(last - line), y));
    }
    return bounds;
}

} // namespace plix::test
