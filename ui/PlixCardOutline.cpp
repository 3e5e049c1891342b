#include "ui/PlixCardOutline.h"

#include "ui/PlixDevicePixels.h"
#include "ui/PlixPaths.h"

#include <QColor>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kCornerRadius = 12;
// The outline may cut a part of a pixel.
constexpr double kSoftEdge = 1;

} // namespace

PlixCardOutline::PlixCardOutline(const QRectF& card)
    : card_(card)
    , radius_(plix::FittingRadius(card, kCornerRadius))
{
}

QPainterPath PlixCardOutline::Path() const
{
    return plix::RoundedPath(card_, kCornerRadius);
}

bool PlixCardOutline::Contains(const QRectF& rect) const
{
    if (rect.isEmpty())
        return true;
    // How far it reaches into the round corners, on the side where it does most.
    const QRectF straight = card_.adjusted(radius_, radius_, -radius_, -radius_);
    const double x = std::max(straight.left() - rect.left(), rect.right() - straight.right());
    const double y = std::max(straight.top() - rect.top(), rect.bottom() - straight.bottom());
    return card_.contains(rect) && (x <= 0 || y <= 0 || std::hypot(x, y) <= radius_ - kSoftEdge);
}

std::optional<QPainterPath> PlixCardOutline::Cut(const QRectF& rect) const
{
    const bool isTop = rect.top() == card_.top();
    const bool isBottom = rect.bottom() == card_.bottom();
    const bool isCutInCorners = rect.left() == card_.left() && rect.right() == card_.right()
        && (isTop || rect.top() >= card_.top() + radius_)
        && (isBottom || rect.bottom() <= card_.bottom() - radius_);
    if (!isCutInCorners || rect.height() < radius_ * (int(isTop) + int(isBottom)))
        return std::nullopt;
    const QSizeF circle(2 * radius_, 2 * radius_);
    const double right = rect.right() - circle.width();
    const double bottom = rect.bottom() - circle.height();
    QPainterPath path(isTop ? rect.topLeft() + QPointF(0, radius_) : rect.topLeft());
    if (isTop) {
        path.arcTo({rect.topLeft(), circle}, 180, -90);
        path.arcTo({{right, rect.top()}, circle}, 90, -90);
    } else {
        path.lineTo(rect.topRight());
    }
    if (isBottom) {
        path.arcTo({{right, bottom}, circle}, 0, -90);
        path.arcTo({{rect.left(), bottom}, circle}, 270, -90);
    } else {
        path.lineTo(rect.bottomRight());
        path.lineTo(rect.bottomLeft());
    }
    path.closeSubpath();
    return path;
}

// Only the parts with corners are filled as paths: rectangles are much cheaper.
void PlixCardOutline::Fill(QPainter& painter, const QRectF& rect, const QColor& color) const
{
    const QRectF middle = rect & card_.adjusted(0, radius_, 0, -radius_);
    if (!plix::IsOnWholePixels(painter, middle)) {
        painter.fillPath(Cut(rect).value_or(QPainterPath()), color);
        return;
    }
    const QSizeF corners(card_.width(), radius_);
    for (const double top : {card_.top(), card_.bottom() - radius_}) {
        const QRectF part = rect & QRectF({card_.left(), top}, corners);
        if (!part.isEmpty())
            painter.fillPath(Cut(part).value_or(QPainterPath()), color);
    }
    plix::FillWholePixels(painter, middle, color);
}
