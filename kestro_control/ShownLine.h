#pragma once

#include "TextRange.h"

#include <QBrush>
#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QTextLayout>

#include <memory>
#include <span>
#include <utility>
#include <vector>

class QGlyphRun;
class QPainter;

namespace kestro {

class ElidedLine;

// Parts of a line: left and right x coordinates in whole pixels.
using LineIntervals = std::vector<std::pair<qreal, qreal>>;

// Sorts intervals and unites those that touch.
void Merge(LineIntervals& intervals);

// How parts of a line differ from the rest of it. `intervals` are merged.
struct LineMark {
    const LineIntervals& intervals;
    const QBrush& background;
    QColor textColor;
};

// A line of a text as it is shown. Refers to the text's layout, so it must not be used
// after that has changed.
class ShownLine {
public:
    using FormatRanges = QVector<QTextLayout::FormatRange>;

    // In pixels; the ink of a line never reaches farther out of it.
    static constexpr qreal kMaximumOverhang = 4096;

    ShownLine();
    ~ShownLine();
    ShownLine(ShownLine&&) noexcept;
    ShownLine& operator=(ShownLine&&) noexcept;

    // The positions in the text of what is shown.
    int Start() const;
    int ShownEnd() const;

    // Whether the line ends in an ellipsis that stands for some of `range`.
    bool HidesPartOf(const TextRange& range) const;

    // The rectangle of the line and of the ink (the pixels that they paint) of its glyphs.
    QRectF Ink() const;
    bool HasInkOutside(qreal width) const;

    // Adds the rectangles of the shown glyphs in `range`.
    void AddGlyphRects(const TextRange& range, std::vector<QRectF>& rects) const;

    // What is shown of `range`, in any order: glyphs, and pictures as high as the line.
    // `pictures`: those of the line's paragraph.
    std::vector<QRectF> RectsOf(const TextRange& range, const FormatRanges& pictures) const;
    LineIntervals IntervalsOf(const TextRange& range, const FormatRanges& pictures) const;
    // Where the ellipsis is. There must be one.
    LineIntervals EllipsisIntervals() const;

    // Of several marks in the same place, the first one is shown.
    void Draw(QPainter& painter, std::span<const LineMark> marks) const;

    QTextLine line;
    // The origin of the line's own coordinates, in those of the item.
    QPointF origin;
    // The rectangle of its text: natural width, full height.
    QRectF rect;
    Qt::Alignment alignment;
    // The owner of `line` if it ends in an ellipsis; null otherwise.
    std::unique_ptr<ElidedLine> elided;
    // The position in the text of the first character of the line's layout.
    int layoutStart = 0;
    // The position in the text where the line ends, with what its ellipsis stands for.
    int end = 0;
    // Merged.
    LineIntervals highlighted;

private:
    bool HasInkOutside(const QGlyphRun& run, qreal width) const;
    void AddPictureRects(const FormatRanges& pictures, const TextRange& range,
                         std::vector<QRectF>& rects) const;
    void AddRects(int start, int length, std::vector<QRectF>& rects) const;
    QPainterPath PathOf(const LineIntervals& intervals) const;
    void DrawText(QPainter& painter, const QTextLayout::FormatRange* format = nullptr) const;
};

} // namespace kestro
