#include "ui/PlixFocusRing.h"

#include "ui/PlixCardClip.h"
#include "ui/PlixPaths.h"

#include <QApplication>
#include <QGraphicsWidget>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPen>

#include <algorithm>
#include <limits>

namespace {

constexpr double kRingWidth = 2;
// Inside of the ring, so that it stands out from a background of its own colour.
constexpr double kInnerWidth = 1;

void DrawFrame(QPainter& painter, const QRectF& rect, double cornerRadius, double inset,
               const QPen& pen)
{
    const double middle = inset + pen.widthF() / 2;
    painter.setPen(pen);
    painter.drawPath(plix::RoundedPath(rect.adjusted(middle, middle, -middle, -middle),
                                       std::max(0.0, cornerRadius - middle)));
}

} // namespace

PlixFocusRing::PlixFocusRing(QGraphicsWidget& item, double cornerRadius)
    : QGraphicsObject(&item)
    , rect_(item.rect())
    , cornerRadius_(cornerRadius)
{
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(std::numeric_limits<double>::max());
    connect(&item, &QGraphicsWidget::geometryChanged, this, [this, &item] {
        prepareGeometryChange();
        rect_ = item.rect();
    });
}

void PlixFocusRing::Show(QGraphicsWidget& item, double cornerRadius)
{
    Hide(item);
    new PlixFocusRing(item, cornerRadius);
}

void PlixFocusRing::Hide(const QGraphicsWidget& item)
{
    for (QGraphicsItem* child : item.childItems())
        delete dynamic_cast<PlixFocusRing*>(child);
}

QPainterPath PlixFocusRing::shape() const
{
    return {};
}

void PlixFocusRing::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    const PlixCardClip clip(*painter, plix::CutByCard(*this, rect_));
    painter->save();
    // Between pixels, a partial paint would show other pixels of the edges.
    plix::ClipToRectangle(*painter, rect_);
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    const QColor color = QApplication::palette().color(QPalette::Highlight);
    DrawFrame(*painter, rect_, cornerRadius_, 0, QPen(color, kRingWidth));
    DrawFrame(*painter, rect_, cornerRadius_, kRingWidth, QPen(Qt::white, kInnerWidth));
    painter->restore();
}
