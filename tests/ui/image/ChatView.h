#pragma once

#include <QColor>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QObject>
#include <QRect>

#include <functional>

class QGraphicsItem;

namespace plix::test {

// A chat window that shows a card and counts its own paints.
class ChatView : private QObject {
public:
    // Shows the card and waits for its first paint.
    explicit ChatView(QGraphicsItem& root);
    // Gives the card back.
    ~ChatView() override;

    QGraphicsView& view() { return view_; }
    // A pixel of the window, painted now.
    QColor at(int x, int y) { return view_.viewport()->grab().toImage().pixelColor(x, y); }

    // How many paints there were since resetPaints(), and the area that they covered.
    int paints() const { return paints_; }
    QRect paintedArea() const { return paintedArea_; }
    void resetPaints();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    QGraphicsItem& root_;
    QGraphicsScene scene_;
    QGraphicsView view_;
    int paints_ = 0;
    QRect paintedArea_;
};

// Delivers all events, and those that they cause.
void deliverEvents();

// Delivers events until the condition is true. False when it is not true for so long that
// it never will be.
bool deliverEventsUntil(const std::function<bool()>& isTrue);

} // namespace plix::test
