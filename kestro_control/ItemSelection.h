#pragma once

#include "SelectionKeys.h"
#include "TextCharacters.h"
#include "TextSelection.h"
#include "TextUnits.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPoint>
#include <QPointF>
#include <QPointer>
#include <QString>

#include <optional>

class QGraphicsObject;
class QGraphicsScene;
class QGraphicsSceneMouseEvent;
class QKeyEvent;
class QWidget;

namespace kestro {

class InteractiveText;
class SelectionFocus;

// What is selected of an item's text, and how mouse and keys change that.
//
// At most one item of a scene has a selection. It lasts until another one begins, or until
// the left button is pressed elsewhere in the scene. When it begins, it gets the keyboard
// focus.
//
// Functions that change the selection may call slots that delete the item, and this
// object with it. So do those of the mouse and of keys.
class ItemSelection : public QObject {
    Q_OBJECT

public:
    // Both must live longer. `text` is the text of the item.
    ItemSelection(QGraphicsObject& item, InteractiveText& text);
    ~ItemSelection() override;

    bool IsEmpty() const { return selection_.Range().IsEmpty(); }
    TextRange Range() const { return selection_.Range(); }
    // As a part of TextItem::toPlainText().
    CharacterRange Characters() const;
    QString Text() const;
    // The end of the selection that mouse and keys move; 0 without a selection.
    int CursorPosition() const;

    // Selects whole characters. The focus stays where it is.
    void Select(const CharacterRange& range);
    // The view of `viewport` gets the keyboard focus; null: the focus stays where it is.
    void SelectAll(QWidget* viewport);
    void Clear();
    // To be called when the text changes, instead of Clear(): calls no slots.
    void Forget();

    // ----- The left button of the mouse

    // Whether a press extends the selection and does not begin another one.
    bool IsExtendedBy(const QGraphicsSceneMouseEvent& press) const;
    void Press(const QGraphicsSceneMouseEvent& event);
    void DoubleClick(const QGraphicsSceneMouseEvent& event);
    bool IsPressed() const { return isPressed_; }
    void Move(const QGraphicsSceneMouseEvent& event);
    // If nothing was selected since the press, the items below the text get the click.
    void Release(const QGraphicsSceneMouseEvent& event);

    // ----- Keys

    // Whether the selection has the keyboard focus in the view of `viewport`, which may be
    // null for any view.
    bool HasFocus(const QWidget* viewport) const;
    // To be called for a press of another button on the item, because Qt takes the focus away.
    void KeepFocus(QWidget* viewport);

    // Whether HandleKey() handles this key.
    bool IsKey(const QKeyEvent& event) const;
    void HandleKey(const QKeyEvent& event);

    bool eventFilter(QObject* scene, QEvent* event) override;

private:
    void StartDrag(const QGraphicsSceneMouseEvent& press, TextUnit unit);
    // Shows what is selected now, and tells clients of QAccessible.
    void Announce();
    // The selection gets the keyboard focus in the view of `viewport`, if that is not null.
    void Change(const TextSelection& selection, QWidget* viewport);
    void WatchScene();
    bool IsThirdPress(const QGraphicsSceneMouseEvent& press) const;
    bool IsPressElsewhere(const QEvent& event) const;
    void SetPrimarySelection() const;

    QGraphicsObject& item_;
    InteractiveText& text_;
    TextSelection selection_;
    // Of the caret.
    std::optional<qreal> x_;
    // Null while there is no selection. One that has become empty can still be extended.
    QPointer<QGraphicsScene> watchedScene_;
    // A child of the item, as long as a scene is watched.
    QPointer<SelectionFocus> focus_;

    bool isPressed_ = false;
    // Since the press.
    bool hasSelected_ = false;
    QPointF pressedAt_;
    QPoint pressedOnScreen_;
    TextUnit unit_ = TextUnit::Character;
    QElapsedTimer sinceDoubleClick_;
};

} // namespace kestro
