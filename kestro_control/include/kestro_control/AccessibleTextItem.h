#pragma once

#include "kestro_control/AccessibleGraphicsObject.h"
#include "kestro_control/TextItem.h"

namespace kestro {

// What clients of QAccessible see of a TextItem: its text, where each character is, and what is
// selected. It has the keyboard focus while something is selected and keys reach the selection.
class KESTRO_CONTROL_API AccessibleTextItem : public AccessibleGraphicsObject,
                                              public QAccessibleTextInterface {
public:
    explicit AccessibleTextItem(TextItem& item);
    ~AccessibleTextItem() override;

    // ----- QAccessibleInterface
    using AccessibleGraphicsObject::text;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // ----- QAccessibleTextInterface: the text, in characters of TextItem::toPlainText()
    QString text(int start, int end) const override;
    int characterCount() const override;
    QRect characterRect(int offset) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    // The background of highlighted words.
    QString attributes(int offset, int* start, int* end) const override;

    // ----- QAccessibleTextInterface: the selection of a read-only text, if the user may select.
    // There is at most one; another replaces it. The cursor is its end that keys move, and does
    // not move by itself.
    int selectionCount() const override;
    void selection(int index, int* start, int* end) const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int) override { }

protected:
    // Null while the item is being deleted.
    TextItem* Text() const;
    QString Name() const override;
    // A child of the item, while something is selected.
    QGraphicsItem* FocusItem() const override;
};

} // namespace kestro
