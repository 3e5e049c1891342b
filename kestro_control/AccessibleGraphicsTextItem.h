#pragma once

#include "kestro_control/AccessibleGraphicsObject.h"

class QGraphicsTextItem;

namespace kestro {

// A text item of Qt: its name is its text.
class AccessibleGraphicsTextItem : public AccessibleGraphicsObject {
public:
    explicit AccessibleGraphicsTextItem(QGraphicsTextItem& item);

    QAccessible::Role role() const override;

protected:
    QString Name() const override;
};

} // namespace kestro
