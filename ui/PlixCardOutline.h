#pragma once

#include <QPainterPath>
#include <QRectF>

#include <optional>

class QColor;
class QPainter;

// The rounded outline of a card. All rectangles are in the card's coordinates.
class PlixCardOutline {
public:
    // `card`: the card's rectangle.
    explicit PlixCardOutline(const QRectF& card);

    QPainterPath Path() const;

    // Whether the whole rectangle is inside. False for some that come close to a
    // round corner.
    bool Contains(const QRectF& rect) const;

    // The part of the rectangle that is inside, if it is as wide as the card, as zones
    // are, and only whole corners are cut off.
    std::optional<QPainterPath> Cut(const QRectF& rect) const;
    // Fills that part. There must be one.
    void Fill(QPainter& painter, const QRectF& rect, const QColor& color) const;

private:
    QRectF card_;
    double radius_;
};
