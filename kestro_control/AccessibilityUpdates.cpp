#include "kestro_control/AccessibilityUpdates.h"

#include <QGraphicsObject>

namespace kestro {

namespace {

class ActivationWatch : public QAccessible::ActivationObserver {
public:
    ActivationWatch() { QAccessible::installActivationObserver(this); }
    ~ActivationWatch() override { QAccessible::removeActivationObserver(this); }
    Q_DISABLE_COPY(ActivationWatch)

    // Qt forgets its observers when the application object is deleted.
    bool IsActive() const { return isActive_ || QAccessible::isActive(); }

private:
    void accessibilityActiveChanged(bool active) override { isActive_ = active; }

    bool isActive_ = false;
};

} // namespace

bool HasAccessibilityClient()
{
    static const ActivationWatch watch;
    return watch.IsActive();
}

void TellAccessibilityClients(QGraphicsObject& item, QAccessible::Event change)
{
    if (!HasAccessibilityClient() || !item.scene())
        return;
    QAccessibleEvent event(&item, change);
    QAccessible::updateAccessibility(&event);
}

} // namespace kestro
