#pragma once

#include <QEvent>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPointer>

#include <vector>

namespace plix::test {

// Cards in a host's view, and the user's mouse over it. Its events go the way
// of the platform's: to the viewport, at whole pixels, with the moves between
// them. Places are those of the scene.
class CardView {
public:
    // Shows a card with some free space around it.
    explicit CardView(QGraphicsItem& root);
    // Gives back the cards that are still there.
    ~CardView();

    CardView(const CardView&) = delete;
    CardView& operator=(const CardView&) = delete;

    void add(QGraphicsItem& root);

    void moveTo(const QPointF& at);
    void press(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
    void release(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
    // A press and a release.
    void click(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
    // Two clicks, of which the platform calls the second press a double click.
    void doubleClick(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);

    // What the mouse looks like where it is.
    Qt::CursorShape cursor() const { return view_.viewport()->cursor().shape(); }

    QGraphicsScene& scene() { return scene_; }

    // A place of the scene that no card is at.
    QPointF nowhere() const { return scene_.sceneRect().topLeft() + QPointF(5, 5); }

private:
    void press(QEvent::Type type, const QPointF& at, Qt::MouseButton button);
    void send(QEvent::Type type, Qt::MouseButton button);

    QGraphicsScene scene_;
    QGraphicsView view_;
    std::vector<QPointer<QGraphicsObject>> roots_;
    QPoint pixel_ {-1, -1};
    Qt::MouseButtons buttons_ = Qt::NoButton;
};

// A click on a card that is shown for as long as it takes.
void click(QGraphicsItem& root, const QPointF& at, Qt::MouseButton button = Qt::LeftButton);

} // namespace plix::test
