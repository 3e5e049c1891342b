#pragma once

#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPointer>
#include <QRegion>

namespace plix::test {

// A card in a host's window. As on a screen, what was painted stays there, and
// only parts of it are painted anew.
class LiveView {
public:
    // Shows a card, `scale` pixels of the window for each logical one, with some
    // free space around it.
    explicit LiveView(QGraphicsItem& root, double scale = 1);
    // Gives back the card if it is still there.
    ~LiveView();

    LiveView(const LiveView&) = delete;
    LiveView& operator=(const LiveView&) = delete;

    // Paints a part of the window anew, in its pixels.
    void paintAgain(const QRegion& part);
    void paintAllAgain();

    // Has everything painted that asked for it, once. No timer runs out
    // meanwhile, so movies stand still.
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

// Where two pictures of one size differ, in pixels; empty when they do not.
QRect differenceOf(const QImage& one, const QImage& other);

} // namespace plix::test
