#pragma once

#include <QEvent>
#include <QGraphicsObject>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QPointer>

#include <vector>

class QMenu;

namespace plix::test {

// Cards in a host's view, and the user's mouse and keyboard. As from the platform, mouse events go
// to the viewport, at whole pixels, with moves between them. Positions are in scene coordinates.
class CardView {
public:
    // Shows a card with some free space around it.
    explicit CardView(QGraphicsItem& root);
    // Removes the cards that still exist from the scene. The caller owns them.
    ~CardView();

    CardView(const CardView&) = delete;
    CardView& operator=(const CardView&) = delete;

    void add(QGraphicsItem& root);

    void moveTo(const QPointF& at);
    void press(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
    // A press that comes as a double click event.
    void pressAgain(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
    void release(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
    // A press and a release.
    void click(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
    // Two clicks; the second press is a double click event, as on all platforms.
    void doubleClick(const QPointF& at, Qt::MouseButton button = Qt::LeftButton);
    // Presses the left button at one place and releases it at the other.
    void drag(const QPointF& from, const QPointF& to);

    // Holds keys such as Shift down while the mouse is used.
    void hold(Qt::KeyboardModifiers keys) { held_ = keys; }

    // What a right click opens: null if it is no menu. It is open until it is closed.
    QMenu* openMenu(const QPointF& at);
    // The tooltip at this place; empty for none.
    QString toolTipAt(const QPointF& at);

    void pressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    // The cursor at the position of the mouse.
    Qt::CursorShape cursor() const { return view_.viewport()->cursor().shape(); }

    QGraphicsScene& scene() { return scene_; }
    QGraphicsView& view() { return view_; }

    // A position in the scene where there is no card.
    QPointF nowhere() const { return scene_.sceneRect().topLeft() + QPointF(5, 5); }

private:
    void press(QEvent::Type type, const QPointF& at, Qt::MouseButton button);
    void send(QEvent::Type type, Qt::MouseButton button);

    QGraphicsScene scene_;
    QGraphicsView view_;
    std::vector<QPointer<QGraphicsObject>> roots_;
    QPoint pixel_ {-1, -1};
    Qt::MouseButtons buttons_ = Qt::NoButton;
    Qt::KeyboardModifiers held_ = Qt::NoModifier;
};

// Shows the card in a view, clicks at `at` and closes the view.
void click(QGraphicsItem& root, const QPointF& at, Qt::MouseButton button = Qt::LeftButton);

} // namespace plix::test
