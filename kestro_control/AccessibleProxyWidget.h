#pragma once

#include "kestro_control/AccessibleGraphicsObject.h"

class QGraphicsProxyWidget;

namespace kestro {

// The place of a widget in a scene: clients see the widget itself.
class AccessibleProxyWidget : public AccessibleGraphicsObject {
public:
    explicit AccessibleProxyWidget(QGraphicsProxyWidget& item);

    bool IsLeftOut() const override { return true; }
    QVector<QAccessibleInterface*> Children() const override;
};

} // namespace kestro
