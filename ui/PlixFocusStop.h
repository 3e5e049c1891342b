#pragma once

#include <QGraphicsWidget>

#include <functional>
#include <optional>

class QKeyEvent;
class TextItem;

// A stop of the Tab key on a clickable text, or on a mention in a text: Qt walks
// widgets only, and a text is none. Draws nothing but the focus ring, and leaves
// the mouse to the text.
class PlixFocusStop : public QGraphicsWidget {
    Q_OBJECT

public:
    using ClickFunc = std::function<void()>;

    // On `text` or, with its number, on a mention in it. The parent of the text owns the
    // stop, and the text must live longer. The Tab key walks in the order in which items
    // are made. `click` may delete the stop.
    PlixFocusStop(TextItem& text, std::optional<int> mention, ClickFunc click);

    TextItem& Text() const { return text_; }
    std::optional<int> Mention() const { return mention_; }

    // May delete the stop.
    void Click();

    // Whether this key clicks what has the focus, as on any button: Enter or Space,
    // but not while it repeats.
    static bool IsClick(const QKeyEvent& event);

    // Puts the ring around `glyphs`, which are in the coordinates of the parent. Without
    // any, the stop is skipped.
    void Place(const QRectF& glyphs);

    QPainterPath shape() const override;
    // Where a parent clips, Qt calls this instead of shape().
    bool contains(const QPointF&) const override { return false; }

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    TextItem& text_;
    const std::optional<int> mention_;
    const ClickFunc click_;
};
