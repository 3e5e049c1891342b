#include "ShownLine.h"

#include "ClipPath.h"
#include "ElidedLine.h"
#include "EmojiPicture.h"

#include <QGlyphRun>
#include <QPainter>
#include <QRawFont>

#include <algorithm>
#include <cmath>

namespace kestro {

namespace {

// The format of marked text, for a whole line.
QTextLayout::FormatRange FormatOf(const LineMark& mark, const QTextLine& line)
{
    QTextLayout::FormatRange range;
    range.start = line.textStart();
    range.length = line.textLength();
    range.format.setForeground(mark.textColor);
    // The backgrounds of spans would cover the mark.
    range.format.setBackground(Qt::NoBrush);
    return range;
}

bool IsVisible(const LineMark& mark)
{
    return !mark.intervals.empty() && mark.background.style() != Qt::NoBrush;
}

// In whole pixels, as the text engine draws the backgrounds of spans.
LineIntervals ToIntervals(const std::vector<QRectF>& rects)
{
    LineIntervals intervals;
    for (const QRectF& rect : rects)
        intervals.emplace_back(std::floor(rect.left()), std::ceil(rect.right()));
    return intervals;
}

} // namespace

void Merge(LineIntervals& intervals)
{
    std::sort(intervals.begin(), intervals.end());
    LineIntervals merged;
    for (const auto& interval : intervals) {
        if (!merged.empty() && interval.first <= merged.back().second)
            merged.back().second = std::max(merged.back().second, interval.second);
        else
            merged.push_back(interval);
    }
    intervals = std::move(merged);
}

ShownLine::ShownLine() = default;
ShownLine::~ShownLine() = default;
ShownLine::ShownLine(ShownLine&&) noexcept = default;
ShownLine& ShownLine::operator=(ShownLine&&) noexcept = default;

int ShownLine::Start() const
{
    return layoutStart + line.textStart();
}

int ShownLine::ShownEnd() const
{
    return elided ? layoutStart + elided->Length()
                  : layoutStart + line.textStart() + line.textLength();
}

bool ShownLine::HidesPartOf(const TextRange& range) const
{
    return elided && range.start <= ShownEnd() && (range.end > ShownEnd() || range.end >= end);
}

void ShownLine::AddGlyphRects(const TextRange& range, std::vector<QRectF>& rects) const
{
    const int first = std::max(range.start, Start());
    const int last = std::min(range.end, ShownEnd());
    AddRects(first - layoutStart, last - first, rects);
}

void ShownLine::AddRects(int start, int length, std::vector<QRectF>& rects) const
{
    if (length <= 0)
        return;
    // A glyph run has one direction, so that its text is in one rectangle.
    for (const QGlyphRun& run : line.glyphRuns(start, length))
        rects.push_back(run.boundingRect().translated(origin));
}

QRectF ShownLine::Ink() const
{
    QRectF ink = rect;
    for (const QGlyphRun& run : line.glyphRuns()) {
        const QRawFont font = run.rawFont();
        const QVector<quint32> glyphs = run.glyphIndexes();
        const QVector<QPointF> positions = run.positions();
        for (int i = 0; i < glyphs.size(); ++i)
            ink |= font.boundingRect(glyphs[i]).translated(positions[i] + origin);
    }
    return ink;
}

bool ShownLine::HasInkOutside(qreal width) const
{
    if (rect.left() < 0 || rect.right() > width)
        return true;
    const QList<QGlyphRun> runs = line.glyphRuns();
    return std::any_of(runs.begin(), runs.end(),
                       [&](const QGlyphRun& run) { return HasInkOutside(run, width); });
}

// Measuring the ink of a glyph takes time: that of a coloured emoji is decoded first. So
// only glyphs near the edges are measured.
bool ShownLine::HasInkOutside(const QGlyphRun& run, qreal width) const
{
    // Ink never reaches farther out of the place of the glyph in the line.
    const qreal reach = rect.height();
    const auto isInside = [&](qreal one, qreal other) {
        return std::min(one, other) >= reach && std::max(one, other) <= width - reach;
    };
    const QRectF place = run.boundingRect().translated(origin);
    if (isInside(place.left(), place.right()))
        return false;
    const QVector<quint32> glyphs = run.glyphIndexes();
    const QVector<QPointF> positions = run.positions();
    for (int i = 0; i < glyphs.size(); ++i) {
        const QPointF start = positions[i] + origin;
        if (i + 1 < glyphs.size() && isInside(start.x(), positions[i + 1].x() + origin.x()))
            continue;
        const QRectF ink = run.rawFont().boundingRect(glyphs[i]).translated(start);
        if (ink.left() < 0 || ink.right() > width)
            return true;
    }
    return false;
}

std::vector<QRectF> ShownLine::RectsOf(const TextRange& range, const FormatRanges& pictures) const
{
    std::vector<QRectF> rects;
    AddGlyphRects(range, rects);
    if (!elided)
        AddPictureRects(pictures, range, rects);
    return rects;
}

LineIntervals ShownLine::IntervalsOf(const TextRange& range, const FormatRanges& pictures) const
{
    return ToIntervals(RectsOf(range, pictures));
}

LineIntervals ShownLine::EllipsisIntervals() const
{
    std::vector<QRectF> rects;
    AddRects(elided->Length(), line.textLength() - elided->Length(), rects);
    return ToIntervals(rects);
}

// Pictures have no glyphs, but the zero width space after each of them has one, at
// its edge.
void ShownLine::AddPictureRects(const FormatRanges& pictures, const TextRange& range,
                                std::vector<QRectF>& rects) const
{
    for (const QTextLayout::FormatRange& picture : pictures) {
        const int first =
            std::max({range.start, Start(), layoutStart + picture.start}) - layoutStart;
        const int last =
            std::min({range.end, ShownEnd(), layoutStart + picture.start + picture.length})
            - layoutStart;
        const qreal width = EmojiPicture::Width(picture.format);
        for (int at = first; at < last; ++at) {
            for (const QGlyphRun& strut : line.glyphRuns(at + 1, 1)) {
                const qreal x = origin.x() + strut.boundingRect().left();
                const qreal left = strut.isRightToLeft() ? x : x - width;
                rects.emplace_back(left, rect.top(), width, rect.height());
            }
        }
    }
}

QPainterPath ShownLine::PathOf(const LineIntervals& intervals) const
{
    QPainterPath path;
    const qreal top = std::floor(rect.top());
    const qreal bottom = std::ceil(rect.bottom());
    for (const auto& [left, right] : intervals)
        AddClipRectangle(path, QRectF(QPointF(left, top), QPointF(right, bottom)));
    return path;
}

// Draws marked text separately, so that it can have another colour without a new layout.
void ShownLine::Draw(QPainter& painter, std::span<const LineMark> marks) const
{
    if (marks.empty()) {
        DrawText(painter);
        return;
    }
    const LineMark& mark = marks.front();
    if (!IsVisible(mark)) {
        Draw(painter, marks.subspan(1));
        return;
    }
    const QPainterPath inside = PathOf(mark.intervals);
    QPainterPath outside;
    outside.addRect(
        rect.adjusted(-kMaximumOverhang, -kMaximumOverhang, kMaximumOverhang, kMaximumOverhang));
    outside.addPath(inside);

    painter.save();
    painter.setClipPath(outside, Qt::IntersectClip);
    Draw(painter, marks.subspan(1));
    painter.restore();

    painter.save();
    painter.setClipPath(inside, Qt::IntersectClip);
    painter.fillRect(inside.boundingRect(), mark.background);
    const QTextLayout::FormatRange format = FormatOf(mark, line);
    DrawText(painter, &format);
    painter.restore();
}

void ShownLine::DrawText(QPainter& painter, const QTextLayout::FormatRange* format) const
{
    if (elided)
        elided->Draw(&painter, origin, format);
    else
        line.draw(&painter, origin, format);
}

} // namespace kestro
