#pragma once

#include <QCursor>
#include <QString>

#include <optional>

class QGraphicsItem;

namespace kestro {

// What an item shows while the mouse is on it. At the end of its life, the item has its
// own cursor and tooltip again.
class HoverFeedback {
public:
    explicit HoverFeedback(QGraphicsItem& item);
    ~HoverFeedback();

    HoverFeedback(const HoverFeedback&) = delete;
    HoverFeedback& operator=(const HoverFeedback&) = delete;

    // Nothing: the item's own cursor.
    void ShowCursor(std::optional<Qt::CursorShape> shape);

    // Shows the text as it is, also if it looks like HTML. An item with a tooltip of its
    // own keeps that.
    void ShowToolTip(const QString& text);
    bool HasToolTip() const { return hasToolTip_; }
    void HideToolTip();

private:
    QGraphicsItem& item_;
    const std::optional<QCursor> ownCursor_;
    std::optional<Qt::CursorShape> shape_;
    bool hasToolTip_ = false;
};

} // namespace kestro
