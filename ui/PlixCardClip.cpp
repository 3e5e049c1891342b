#include "ui/PlixCardClip.h"

#include "ui/PlixBubbleUI.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QTransform>

namespace plix {

std::optional<PlixCardCut> CutByCard(const QGraphicsItem& item, const QRectF& painted)
{
    QRectF onCard = painted;
    const QGraphicsItem* card = &item;
    while (card && !PlixBubbleUI::LeavesClippingToItems(*card)) {
        onCard = card->mapRectToParent(onCard);
        card = card->parentItem();
    }
    if (!card)
        return std::nullopt;
    const PlixCardOutline outline(card->boundingRect());
    if (outline.Contains(onCard))
        return std::nullopt;
    const QTransform toItem = card->itemTransform(&item);
    const std::optional<QPainterPath> cut = outline.Cut(onCard);
    if (!cut || toItem.type() > QTransform::TxTranslate)
        return PlixCardCut {toItem.map(outline.Path()), std::nullopt};
    return PlixCardCut {toItem.map(*cut), PlixCardOutline(toItem.mapRect(card->boundingRect()))};
}

} // namespace plix

PlixCardClip::PlixCardClip(QPainter& painter, const std::optional<PlixCardCut>& cut)
{
    if (!cut)
        return;
    clipped_ = &painter;
    painter.save();
    painter.setClipPath(cut->path, Qt::IntersectClip);
}

PlixCardClip::~PlixCardClip()
{
    if (clipped_)
        clipped_->restore();
}
