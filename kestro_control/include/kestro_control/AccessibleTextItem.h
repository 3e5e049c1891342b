#pragma once

#include "kestro_control/AccessibleGraphicsObject.h"
#include "kestro_control/TextItem.h"

namespace kestro {

// What clients of QAccessible see of a TextItem: its text, and where each character is.
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

    // ----- QAccessibleTextInterface: the selection and the cursor, of which there is none
    int selectionCount() const override { return 0; }
    void selection(int index, int* start, int* end) const override;
    void addSelection(int, int) override { }
    void removeSelection(int) override { }
    void setSelection(int, int, int) override { }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override { }

protected:
    // Null while the item is being deleted.
    TextItem* Text() const;
    QString Name() const override;
};

} // namespace kestro
