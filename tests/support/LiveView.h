#pragma once

#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPointer>
#include <QRegion>

namespace plix::test {

// A card in a host's window. As on a screen, what was painted stays there, and only parts
// of it are painted again.
class LiveView {
public:
    // Shows a card with some free space around it, at `scale` pixels of the window per
    // logical pixel.
    explicit LiveView(QGraphicsItem& root, double scale = 1);
    // Removes the card from the scene if it still exists. The caller owns it.
    ~LiveView();

    LiveView(const LiveView&) = delete;
    LiveView& operator=(const LiveView&) = delete;

    void pressKey(Qt::Key key);

    // Paints a part of the window again. The part is in pixels of the window.
    void paintAgain(const QRegion& part);
    void paintAllAgain();

    // Paints everything that has requested an update, once. Delivers no timer events, so
    // animations stand still.
    void paintWhatChanged();

    // What the user sees now.
    QImage shown() const;
    // All pixels of the window.
    QRect pixels() const { return view_.viewport()->rect(); }
    // The pixels that show this part of the scene.
    QRectF pixelsOf(const QRectF& sceneRect) const;

private:
    QGraphicsScene scene_;
    QGraphicsView view_;
    QPointer<QGraphicsObject> root_;
};

// The smallest rectangle around the pixels that differ; empty when there are none. All of
// both for images of different sizes.
QRect differenceOf(const QImage& one, const QImage& other);

} // namespace plix::test
