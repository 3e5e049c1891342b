#pragma once

#include <QBrush>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QTextLayout>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

class QGlyphRun;
class QPainter;

namespace kestro {

class ElidedLine;
class HighlightWords;
class LaidOutText;

// The shown lines of a text that has a line limit: their positions, ellipses and
// highlights. Refers to the text's layout, so it must not be used after that has
// changed.
class ShownLines {
public:
    // In pixels; the ink of a line never reaches farther out of it.
    static constexpr qreal kMaximumOverhang = 4096;

    // No line.
    ShownLines();
    // `maxCount` 0: no limit. `hasMoreText`: there is more text after the end of
    // `text`.
    ShownLines(const LaidOutText& text, int maxCount, bool elide, bool hasMoreText);
    ~ShownLines();
    ShownLines(ShownLines&&) noexcept;
    ShownLines& operator=(ShownLines&&) noexcept;

    int Count() const;
    bool IsElided() const;
    QRectF BoundingRect() const;

    // The distance from the top of the first line to its baseline. There must be a
    // line.
    qreal FirstAscent() const;

    // The rectangles of the shown glyphs between two positions in the text, each as high as the
    // ascent and descent of its font.
    std::vector<QRectF> GlyphRects(int start, int end) const;

    // The position in the text of the shown character at a point.
    std::optional<int> PositionAt(const QPointF& point) const;

    // Replaces the earlier highlight.
    void Highlight(const LaidOutText& text, const HighlightWords& words);

    // The rectangle of the lines and of the ink (the pixels that they paint) of their
    // glyphs, which may reach out of their line.
    QRectF Ink() const;

    // Whether glyphs have ink left of 0 or right of `width`. This happens with slanted
    // glyphs and with lines that are too wide.
    bool HasInkOutside(qreal width) const;

    // Draws the lines that may have ink in `exposed`. Highlighted text has
    // `highlight` as its background.
    void Draw(QPainter* painter, const QRectF& exposed, const QBrush& highlight) const;

private:
    // Left and right x coordinate.
    using Interval = std::pair<qreal, qreal>;
    using FormatRanges = QVector<QTextLayout::FormatRange>;

    struct Line {
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
        // Without overlaps, in ascending order.
        std::vector<Interval> highlighted;

        // The positions in the text of what is shown.
        int Start() const;
        int End() const;

        // The rectangle of the line and of the ink of its glyphs.
        QRectF Ink() const;
        bool HasInkOutside(qreal width) const;
        bool HasInkOutside(const QGlyphRun& run, qreal width) const;
        void AddGlyphRects(int start, int end, std::vector<QRectF>& rects) const;
        void AddPictureRects(const FormatRanges& pictures, int start, int end,
                             std::vector<QRectF>& rects) const;
        void MergeHighlights();
        void Draw(QPainter* painter, const QBrush& highlight) const;
        void DrawText(QPainter* painter, const QTextLayout::FormatRange* format = nullptr) const;
        QPainterPath HighlightedPath() const;
    };
    class Builder;

    std::size_t FirstLineEndingAfter(int position) const;
    void HighlightRange(int start, int end, const FormatRanges& pictures);

    qreal WidestLine() const;
    void AlignLinesIn(qreal width);

    std::vector<Line> lines_;
    QRectF boundingRect_;
};

} // namespace kestro
