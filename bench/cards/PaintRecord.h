#pragma once

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainterPath>
#include <QPen>

#include <vector>

namespace bench {

struct PaintedFill {
    QPainterPath path;
    QBrush brush;
    QPen pen;
};

// Characters of one line in one format.
struct PaintedRun {
    QString text;
    QFont font;
    QColor color;
    QPointF baseline;
    qreal width = 0;
};

struct PaintedPicture {
    QRectF target;
    // Empty: all of the target.
    QPainterPath outline;
};

// What an item has painted, in its own coordinates.
struct PaintRecord {
    std::vector<PaintedFill> fills;
    std::vector<PaintedRun> runs;
    std::vector<PaintedPicture> pictures;
};

} // namespace bench
