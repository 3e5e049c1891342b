#pragma once

#include "ShownLine.h"
#include "TextRange.h"

#include <QBrush>
#include <QColor>
#include <QRectF>

#include <memory>
#include <utility>
#include <vector>

class QPainter;

namespace kestro {

class HighlightWords;
class LaidOutText;

// What is selected in each of the lines, and how that looks. Without lines, nothing is.
struct SelectionLook {
    std::vector<LineIntervals> lines;
    QBrush background;
    QColor textColor;
};

// The shown lines of a text that has a line limit: their positions, ellipses and
// highlights. Refers to the text's layout, so it must not be used after that has
// changed.
class ShownLines {
public:
    // No line.
    ShownLines() = default;
    // `maxCount` 0: no limit. `hasMoreText`: there is more text after the end of
    // `text`.
    ShownLines(const LaidOutText& text, int maxCount, bool elide, bool hasMoreText);

    int Count() const;
    bool IsElided() const;
    QRectF BoundingRect() const;

    // The distance from the top of the first line to its baseline. There must be a
    // line.
    qreal FirstAscent() const;

    const std::vector<ShownLine>& Lines() const { return lines_; }

    // The rectangles of the shown glyphs in a part of the text, each as high as the ascent and
    // descent of its font.
    std::vector<QRectF> GlyphRects(const TextRange& range) const;

    // Replaces the earlier highlight.
    void Highlight(const LaidOutText& text, const HighlightWords& words);

    // The rectangle of the lines and of the ink (the pixels that they paint) of their
    // glyphs, which may reach out of their line.
    QRectF Ink() const;

    // Whether glyphs have ink left of 0 or right of `width`. This happens with slanted
    // glyphs and with lines that are too wide.
    bool HasInkOutside(qreal width) const;

    // Where a part of the text is in each of the lines, with the ellipses that stand for some
    // of it.
    std::vector<LineIntervals> IntervalsOf(const LaidOutText& text, const TextRange& range) const;

    // Draws the lines that may have ink in `exposed`. Highlighted text has
    // `highlight` as its background.
    void Draw(QPainter& painter, const QRectF& exposed, const QBrush& highlight,
              const SelectionLook& selection) const;

private:
    class Builder;

    std::size_t FirstLineEndingAfter(int position) const;
    void HighlightRange(const TextRange& range, const ShownLine::FormatRanges& pictures);

    qreal WidestLine() const;
    void AlignLinesIn(qreal width);

    std::vector<ShownLine> lines_;
    QRectF boundingRect_;
};

} // namespace kestro
