#include "support/Keyboard.h"

#include <QApplication>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QPointer>

namespace plix::test {

void pressKey(QGraphicsView& view, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (!view.hasFocus()) {
        QApplication::setActiveWindow(view.window());
        view.setFocus(Qt::OtherFocusReason);
    }
    const QPointer<QGraphicsView> self(&view);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers);
        if (self)
            QApplication::sendEvent(self, &event);
    }
}

} // namespace plix::test
