#pragma once

#include <kestro_control/AccessibleGraphicsObject.h>

class PlixFocusStop;

// A mention in a text. Its item is the stop of the Tab key on it.
class PlixAccessibleMention : public kestro::AccessibleGraphicsObject {
public:
    using AccessibleGraphicsObject::AccessibleGraphicsObject;

    QGraphicsItem* ParentItem() const override;
    QVector<QAccessibleInterface*> Children() const override { return {}; }
    QAccessible::Role role() const override { return QAccessible::Link; }

protected:
    QString Name() const override;
    bool CanPress() const override { return true; }
    void Press() override;

private:
    // Null while it is being deleted.
    PlixFocusStop* Stop() const;
};
