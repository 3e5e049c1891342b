#include "FuzzWindow.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>

#include <array>

namespace plix::test {
namespace {

constexpr int kWidth = 320;
constexpr int kHeight = 400;

} // namespace

FuzzWindow& FuzzWindow::instance()
{
    // Never deleted: QApplication is gone when static objects are destroyed.
    static auto* const window = new FuzzWindow;
    return *window;
}

FuzzWindow::FuzzWindow()
    : view_(&scene_)
    , canvas_(kWidth, kHeight, QImage::Format_ARGB32_Premultiplied)
{
    scene_.setSceneRect(0, 0, kWidth, kHeight);
    scene_.setItemIndexMethod(QGraphicsScene::NoIndex);
    view_.setFrameShape(QFrame::NoFrame);
    view_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view_.resize(kWidth, kHeight);
    view_.show();
    QApplication::setActiveWindow(&view_);
}

void FuzzWindow::show(QGraphicsItem& item)
{
    scene_.addItem(&item);
}

void FuzzWindow::clear()
{
    while (QWidget* const popup = QApplication::activePopupWidget())
        popup->close();
    scene_.clear();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

void FuzzWindow::paint()
{
    paintPart(canvas_.rect());
}

void FuzzWindow::paintPart(const QRect& part)
{
    const QRect shown = part & canvas_.rect();
    if (!shown.isEmpty())
        view_.viewport()->render(&canvas_, shown.topLeft(), shown);
}

void FuzzWindow::useMouse(FuzzInput& input)
{
    static constexpr std::array kTypes {QEvent::MouseMove, QEvent::MouseButtonPress,
                                        QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick,
                                        QEvent::ContextMenu};
    static constexpr std::array kModifiers {Qt::NoModifier, Qt::ShiftModifier, Qt::ControlModifier};
    const auto type = kTypes[static_cast<std::size_t>(input.below(kTypes.size()))];
    const auto modifiers = kModifiers[static_cast<std::size_t>(input.below(kModifiers.size()))];
    const auto button = input.below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
    const QPoint at(input.below(kWidth), input.below(kHeight));
    if (type != QEvent::ContextMenu) {
        sendMouse(type, at, button, modifiers);
        return;
    }
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, view_.viewport()->mapToGlobal(at));
    QApplication::sendEvent(view_.viewport(), &event);
}

void FuzzWindow::sendMouse(QEvent::Type type, const QPoint& at, Qt::MouseButton button,
                           Qt::KeyboardModifiers modifiers)
{
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick;
    const bool isMove = type == QEvent::MouseMove;
    if (!isMove)
        pressed_.setFlag(button, isPress);
    QMouseEvent event(type, at, view_.viewport()->mapToGlobal(at), isMove ? Qt::NoButton : button,
                      pressed_, modifiers);
    QApplication::sendEvent(view_.viewport(), &event);
}

void FuzzWindow::pressKey(FuzzInput& input)
{
    struct Key {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static const std::array kKeys {
        Key {Qt::Key_Tab, Qt::NoModifier},     Key {Qt::Key_Backtab, Qt::ShiftModifier},
        Key {Qt::Key_Space, Qt::NoModifier},   Key {Qt::Key_Return, Qt::NoModifier},
        Key {Qt::Key_C, Qt::ControlModifier},  Key {Qt::Key_A, Qt::ControlModifier},
        Key {Qt::Key_Left, Qt::ShiftModifier}, Key {Qt::Key_Right, Qt::ShiftModifier},
        Key {Qt::Key_Up, Qt::ShiftModifier},   Key {Qt::Key_Down, Qt::ShiftModifier},
        Key {Qt::Key_End, Qt::ShiftModifier},  Key {Qt::Key_Home, Qt::ShiftModifier},
        Key {Qt::Key_Escape, Qt::NoModifier},  Key {Qt::Key_Menu, Qt::NoModifier},
        Key {Qt::Key_X, Qt::NoModifier},       Key {Qt::Key_Delete, Qt::NoModifier}};
    const Key& key = kKeys[static_cast<std::size_t>(input.below(kKeys.size()))];
    view_.setFocus();
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key.key, key.modifiers);
        QApplication::sendEvent(&view_, &event);
    }
}

} // namespace plix::test
