#include "view/CardView.h"

#include <QGraphicsScene>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace plix::tool {
namespace {

constexpr double kMargin = 16;
constexpr double kZoomStep = 1.25;
constexpr double kMinimumZoom = 0.25;
constexpr double kMaximumZoom = 8;

// The backgrounds of a light and of a dark chat.
const QColor kLightChat(0xFF, 0xFF, 0xFF);
const QColor kDarkChat(0x2B, 0x30, 0x38);

const QColor kOutline(0xE6, 0x00, 0x7A);
constexpr double kInsideOpacity = 0.05;

} // namespace

CardView::CardView(QWidget* parent)
    : QGraphicsView(parent)
    , cards_(new QGraphicsScene(this))
{
    setScene(cards_);
    setAlignment(Qt::AlignTop | Qt::AlignHCenter);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing
                   | QPainter::SmoothPixmapTransform);
    viewport()->setMouseTracking(true);
    setAccessibleName(QStringLiteral("Card"));
    setDark(false);
    connect(cards_, &QGraphicsScene::focusItemChanged, this, [this](QGraphicsItem* item) {
        if (item)
            ensureVisible(item); // what the Tab key has reached
    });
}

CardView::~CardView()
{
    setCard(nullptr);
}

void CardView::setCard(QGraphicsObject* card)
{
    if (card_)
        cards_->removeItem(card_);
    card_ = card;
    outlined_ = nullptr;
    if (card)
        cards_->addItem(card);
    arrange();
}

void CardView::setOutlined(QGraphicsObject* item)
{
    if (item == outlined_)
        return;
    outlined_ = item;
    viewport()->update();
}

void CardView::setDark(bool isDark)
{
    setBackgroundBrush(isDark ? kDarkChat : kLightChat);
}

void CardView::setWindowWidth(int width)
{
    windowWidth_ = width;
    arrange();
}

void CardView::zoomIn()
{
    setZoom(zoom_ * kZoomStep);
}

void CardView::zoomOut()
{
    setZoom(zoom_ / kZoomStep);
}

void CardView::resetZoom()
{
    setZoom(1);
}

void CardView::setZoom(double zoom)
{
    zoom_ = std::clamp(zoom, kMinimumZoom, kMaximumZoom);
    arrange();
}

// A card that is too wide for the chat becomes smaller as a whole.
void CardView::arrange()
{
    if (!card_)
        return;
    const double width = std::max(card_->boundingRect().width(), 1.0);
    const double fit = windowWidth_ > 0 ? std::min(1.0, windowWidth_ / width) : 1;
    const double scale = zoom_ * fit;
    card_->setScale(scale);
    cards_->setSceneRect(card_->sceneBoundingRect().adjusted(-kMargin, -kMargin, kMargin, kMargin));
    Q_EMIT scaled(scale);
}

void CardView::drawForeground(QPainter* painter, const QRectF& exposed)
{
    QGraphicsView::drawForeground(painter, exposed);
    if (!outlined_)
        return;
    QColor inside = kOutline;
    inside.setAlphaF(kInsideOpacity);
    QPen pen(kOutline, 1);
    pen.setCosmetic(true);
    painter->setPen(pen);
    painter->setBrush(inside);
    painter->drawRect(outlined_->sceneBoundingRect());
}

void CardView::mouseMoveEvent(QMouseEvent* event)
{
    QGraphicsView::mouseMoveEvent(event);
    Q_EMIT hovered(objectAt(event->pos()));
}

void CardView::mousePressEvent(QMouseEvent* event)
{
    const bool isPick =
        event->button() == Qt::LeftButton && event->modifiers() == Qt::ControlModifier;
    if (isPick)
        Q_EMIT picked(objectAt(event->pos()));
    else
        QGraphicsView::mousePressEvent(event);
}

void CardView::leaveEvent(QEvent* event)
{
    QGraphicsView::leaveEvent(event);
    Q_EMIT hovered(nullptr);
}

QGraphicsObject* CardView::objectAt(const QPoint& place) const
{
    QGraphicsItem* item = itemAt(place);
    const auto isOfTheLibrary = [](QGraphicsItem* each) {
        const QGraphicsObject* const object = each->toGraphicsObject();
        return object && !object->inherits("PlixFocusStop");
    };
    while (item && !isOfTheLibrary(item))
        item = item->parentItem();
    return item ? item->toGraphicsObject() : nullptr;
}

} // namespace plix::tool
