// The base of what clients of QAccessible, such as screen readers, see of graphics items.
//
// To show items of your own, derive from this class, make objects of it in a factory,
// and pass that to QAccessible::installFactory(). Qt makes an interface when a client asks
// for it, owns it, and deletes it with its item. Use it on the GUI thread only.
#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QAccessibleObject>
#include <QVector>

#include <memory>

class QGraphicsItem;
class QGraphicsObject;
class QGraphicsView;

namespace kestro {

class ChildWalk;

// By itself, a group that has the interfaces of the child items below it. Everything is
// computed when a client asks for it. On the screen, an item is where the first
// visible view of its scene shows it.
class KESTRO_CONTROL_API AccessibleGraphicsObject : public QAccessibleObject,
                                                    public QAccessibleActionInterface {
public:
    explicit AccessibleGraphicsObject(QGraphicsObject& item);
    ~AccessibleGraphicsObject() override;

    // Whether clients see the children in the place of the item.
    virtual bool IsLeftOut() const;
    // The item below which clients find this one. By default, its parent item.
    virtual QGraphicsItem* ParentItem() const;
    // By default, the interfaces of the child items.
    virtual QVector<QAccessibleInterface*> Children() const;

    // ----- QAccessibleInterface
    QWindow* window() const override;
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QAccessibleInterface* focusChild() const override;
    // The name is that of the item's property "accessibleName" or, without one, Name().
    QString text(QAccessible::Text kind) const override;
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    // ----- QAccessibleActionInterface
    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

protected:
    // Null while the item is being deleted.
    QGraphicsObject* Item() const;
    // Null if no view shows the item.
    QGraphicsView* View() const;
    // On the screen, a rectangle of the item.
    QRect OnScreen(const QRectF& rect) const;

    virtual QString Name() const;
    // The item that gets the keyboard focus for this one. By default, the item itself.
    virtual QGraphicsItem* FocusItem() const;
    // Whether there is the action "press". Without effect for a disabled item.
    virtual bool CanPress() const;
    // May delete the item, and this with it.
    virtual void Press();

private:
    bool CanGetFocus() const;
    void TakeFocus();

    const std::unique_ptr<ChildWalk> children_;
};

} // namespace kestro
