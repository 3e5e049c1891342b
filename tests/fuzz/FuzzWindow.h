#pragma once

#include "FuzzInput.h"

#include <QEvent>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QImage>
#include <QPoint>
#include <QRect>

namespace plix::test {

// The window of a fuzzer. It stays open from one input to the next, because opening a
// window takes longer than showing a small card.
class FuzzWindow {
public:
    // Exists as long as the QApplication.
    static FuzzWindow& instance();

    // The scene and the caller own `item` as usual. An item that still exists must be
    // taken out with clear() or deleted before the next input.
    void show(QGraphicsItem& item);
    // Deletes all items that are left.
    void clear();

    QGraphicsScene& scene() { return scene_; }

    // Paints all of the window, or a part of it, now.
    void paint();
    void paintPart(const QRect& part);

    // One event of the mouse or the keyboard, chosen by `input`. The event may delete
    // the item that is shown.
    void useMouse(FuzzInput& input);
    void pressKey(FuzzInput& input);

private:
    FuzzWindow();

    void sendMouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button,
                   Qt::KeyboardModifiers modifiers);

    QGraphicsScene scene_;
    QGraphicsView view_;
    QImage canvas_;
    Qt::MouseButtons pressed_ = Qt::NoButton;
};

} // namespace plix::test
