#include "Flow.h"

#include <algorithm>
#include <cmath>

namespace bench {
namespace {

constexpr qreal tolerance = 1;

// Whether more rectangles begin behind their neighbour than below it.
bool looksLikeRow(const std::vector<QRectF>& rects)
{
    int behind = 0;
    int below = 0;
    for (std::size_t i = 1; i < rects.size(); ++i) {
        behind += rects[i].left() >= rects[i - 1].right() - tolerance;
        below += rects[i].top() >= rects[i - 1].bottom() - tolerance;
    }
    return behind > below;
}

// Rectangles of a column as they are; those of a row with x and y exchanged, so
// that both are computed as columns.
QRectF asInColumn(const QRectF& rect, bool isRow)
{
    return isRow ? QRectF(rect.y(), rect.x(), rect.height(), rect.width()) : rect;
}

QMarginsF paddingsAround(const QSizeF& size, const std::vector<QRectF>& column)
{
    QMarginsF paddings(size.width(), 0, size.width(), size.height());
    for (const QRectF& rect : column) {
        paddings.setLeft(std::min(paddings.left(), rect.left()));
        paddings.setRight(std::min(paddings.right(), size.width() - rect.right()));
    }
    paddings.setLeft(std::max(paddings.left(), 0.0));
    paddings.setRight(std::max(paddings.right(), 0.0));
    if (!column.empty())
        paddings.setBottom(std::max(size.height() - column.back().bottom(), 0.0));
    return paddings;
}

Flow::Place placeOf(const QRectF& rect, qreal end, const QSizeF& size, const QMarginsF& paddings)
{
    const qreal inside = size.width() - paddings.left() - paddings.right();
    const qreal left = rect.left() - paddings.left();
    const bool isStretched =
        std::abs(left) <= tolerance && std::abs(rect.width() - inside) <= tolerance;
    return {left, rect.top() - end, isStretched};
}

} // namespace

Flow flowOf(const QSizeF& size, const std::vector<QRectF>& rects)
{
    Flow flow;
    flow.isRow = looksLikeRow(rects);
    const QSizeF columnSize = flow.isRow ? size.transposed() : size;
    std::vector<QRectF> column;
    column.reserve(rects.size());
    for (const QRectF& rect : rects)
        column.push_back(asInColumn(rect, flow.isRow));
    const QMarginsF paddings = paddingsAround(columnSize, column);
    qreal end = 0;
    for (const QRectF& rect : column) {
        Flow::Place place = placeOf(rect, end, columnSize, paddings);
        flow.isPile = flow.isPile || place.top < -tolerance;
        if (flow.isRow)
            std::swap(place.left, place.top);
        flow.places.push_back(place);
        end = rect.bottom();
    }
    flow.paddings = flow.isRow
        ? QMarginsF(paddings.top(), paddings.left(), paddings.bottom(), paddings.right())
        : paddings;
    return flow;
}

} // namespace bench
