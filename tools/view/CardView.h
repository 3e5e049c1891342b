#pragma once

#include <QGraphicsObject>
#include <QGraphicsView>
#include <QPointer>

namespace plix::tool {

// Shows a card as a chat does: its mouse and keyboard work. Outlines one of its items.
class CardView : public QGraphicsView {
    Q_OBJECT

public:
    explicit CardView(QWidget* parent = nullptr);
    ~CardView() override;

    // The card before it leaves the view. The caller keeps the ownership.
    void setCard(QGraphicsObject* card);
    QGraphicsObject* card() const { return card_; }

    // None if null.
    void setOutlined(QGraphicsObject* item);
    void setDark(bool isDark);
    // The width of the chat in logical pixels: a wider card is made smaller. 0: no limit.
    void setWindowWidth(int width);

    void zoomIn();
    void zoomOut();
    void resetZoom();

Q_SIGNALS:
    // The item under the mouse; null if there is none.
    void hovered(QGraphicsObject* item);
    // The user wants to see where the item is in the text.
    void picked(QGraphicsObject* item);
    // The scale of the card.
    void scaled(double scale);

protected:
    void drawForeground(QPainter* painter, const QRectF& exposed) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void setZoom(double zoom);
    void arrange();
    QGraphicsObject* objectAt(const QPoint& place) const;

    QGraphicsScene* cards_;
    QPointer<QGraphicsObject> card_;
    QPointer<QGraphicsObject> outlined_;
    double zoom_ = 1;
    int windowWidth_ = 0;
};

} // namespace plix::tool
