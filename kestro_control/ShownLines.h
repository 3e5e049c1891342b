#pragma once

#include <QBrush>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <QTextLayout>

#include <memory>
#include <utility>
#include <vector>

class QPainter;
class QTextDocument;

namespace kestro {

class ElidedLine;
class HighlightWords;

// The lines of a document that are shown under a line limit: which, where, and
// with which ellipses. A picture of the document as it is laid out at the time;
// it must not be used after the document has changed.
class ShownLines {
public:
    // No line.
    ShownLines();
    // `maxCount` 0: no limit. `goesOn`: there is more text than the document
    // holds.
    ShownLines(const QTextDocument& document, int maxCount, bool elide, bool hasMoreText);
    ~ShownLines();
    ShownLines(ShownLines&&) noexcept;
    ShownLines& operator=(ShownLines&&) noexcept;

    int Count() const;
    bool IsElided() const;
    QRectF BoundingRect() const;

    // From the top of the first line to its baseline. There must be a line.
    qreal FirstAscent() const;

    // What the shown glyphs of the text between two positions of the document
    // take up, from their fonts' ascents to their descents.
    std::vector<QRectF> GlyphRects(int start, int end) const;

    // Replaces the earlier highlight.
    void Highlight(const QTextDocument& document, const HighlightWords& words);

    // Whether glyphs leave ink left of 0 or right of `width`: slanted ones do, and
    // those of lines that are too wide.
    bool HasInkOutside(qreal width) const;

    // Draws the lines that may leave ink in `exposed`, and what is highlighted
    // on a ground of `highlight`.
    void Draw(QPainter* painter, const QRectF& exposed, const QBrush& highlight) const;

private:
    // From left to right.
    using Interval = std::pair<qreal, qreal>;
    using FormatRanges = QVector<QTextLayout::FormatRange>;

    struct Line {
        QTextLine line;
        // Where the line's own coordinates have their origin.
        QPointF origin;
        // The text on it: natural width, full height.
        QRectF rect;
        Qt::Alignment alignment;
        std::unique_ptr<ElidedLine> elided;
        // Where the document has the first character of the line's layout.
        int layoutStart = 0;
        // Without overlaps, in ascending order.
        std::vector<Interval> highlighted;

        // The text of the document that is shown.
        int Start() const;
        int End() const;

        // As far as its glyphs leave ink, and the line itself.
        QRectF Ink() const;
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
    void Highlight(int start, int end, const FormatRanges& pictures);

    qreal WidestLine() const;
    void AlignLinesIn(qreal width);

    std::vector<Line> lines_;
    QRectF boundingRect_;
};

} // namespace kestro
