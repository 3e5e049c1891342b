#pragma once

#include <QMarginsF>
#include <QRectF>

#include <vector>

namespace bench {

// A row or a column that places rectangles where they are.
struct Flow {
    struct Place {
        // Left of the rectangle and above it. Negative where it overlaps.
        qreal left = 0;
        qreal top = 0;
        // It is as wide as the column, or as high as the row.
        bool isStretched = false;
    };

    bool isRow = false;
    // They lie on each other, so that neither a row nor a column has them.
    bool isPile = false;
    QMarginsF paddings;
    std::vector<Place> places;
};

Flow flowOf(const QSizeF& size, const std::vector<QRectF>& rects);

} // namespace bench
