#pragma once

#include <memory>
#include <optional>

class QGraphicsObject;
class QGraphicsSceneHoverEvent;
class QGraphicsSceneMouseEvent;

namespace kestro {

class HoverFeedback;
class InteractiveText;
class ItemSelection;

// What the mouse does to a read-only text: it clicks mentions and selects. All other
// events are ignored, so that the items below get them.
class TextInteraction {
public:
    // Both must live longer.
    TextInteraction(QGraphicsObject& item, InteractiveText& text);
    ~TextInteraction();

    TextInteraction(const TextInteraction&) = delete;
    TextInteraction& operator=(const TextInteraction&) = delete;

    // These may call slots that delete the item. The second press of a double click is a
    // press, too.
    void Press(QGraphicsSceneMouseEvent& event);
    void Move(QGraphicsSceneMouseEvent& event);
    void Release(QGraphicsSceneMouseEvent& event);

    void Hover(QGraphicsSceneHoverEvent& event);
    // The mouse has left the item, or other text is below it.
    void EndHover();

    // Null until somebody selects.
    ItemSelection* Selection() const { return selection_.get(); }
    ItemSelection& MakeSelection();

private:
    bool IsSelectable() const;
    bool IsSelecting() const;
    void ReleaseMention(const QGraphicsSceneMouseEvent& event);

    QGraphicsObject& item_;
    InteractiveText& text_;
    // The id of the mention on which the left button was pressed.
    std::optional<int> pressedMentionId_;
    std::unique_ptr<ItemSelection> selection_;
    // Null while the mouse is elsewhere.
    std::unique_ptr<HoverFeedback> hover_;
};

} // namespace kestro
