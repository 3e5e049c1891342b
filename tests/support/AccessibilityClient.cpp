#include "support/AccessibilityClient.h"

// The plugin below is part of the program.
#define QT_STATICPLUGIN
#include <QAccessibleBridgePlugin>
#include <QMetaEnum>
#include <QtPlugin>

#include <utility>

namespace {

std::vector<std::string> updates;

// What is selected, if the update is about that: " start-end".
std::string selectionIn(const QAccessibleEvent& event)
{
    if (event.type() != QAccessible::TextSelectionChanged)
        return {};
    const auto& change = static_cast<const QAccessibleTextSelectionEvent&>(event);
    const int start = change.selectionStart();
    return start < 0 ? " none"
                     : ' ' + std::to_string(start) + '-' + std::to_string(change.selectionEnd());
}

// What Qt calls a bridge takes updates to clients.
class TestBridge : public QAccessibleBridge {
public:
    void setRootObject(QAccessibleInterface*) override { }
    void notifyAccessibilityUpdate(QAccessibleEvent* event) override
    {
        const QAccessibleInterface* const changed = event->accessibleInterface();
        // Those of widgets are Qt's business.
        if (!changed || changed->object()->isWidgetType())
            return;
        const std::string name = changed->text(QAccessible::Name).toStdString();
        updates.push_back(QMetaEnum::fromType<QAccessible::Event>().valueToKey(event->type())
                          + (": " + name) + selectionIn(*event));
    }
};

} // namespace

class TestBridgePlugin : public QAccessibleBridgePlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QAccessibleBridgeFactoryInterface_iid FILE "AccessibilityClient.json")

public:
    QAccessibleBridge* create(const QString&) override
    {
        // Qt does not delete it.
        static auto* const bridge = new TestBridge;
        return bridge;
    }
};

Q_IMPORT_PLUGIN(TestBridgePlugin)

#include "AccessibilityClient.moc"

namespace plix::test {

AccessibilityClient::AccessibilityClient()
{
    updates.clear();
    QAccessible::setActive(true);
}

AccessibilityClient::~AccessibilityClient()
{
    QAccessible::setActive(false);
}

std::vector<std::string> AccessibilityClient::takeUpdates()
{
    return std::exchange(updates, {});
}

} // namespace plix::test
