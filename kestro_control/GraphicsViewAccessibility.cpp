#include "kestro_control/GraphicsViewAccessibility.h"

#include "AccessibleGraphicsTextItem.h"
#include "AccessibleGraphicsView.h"
#include "AccessibleProxyWidget.h"
#include "AccessibleSelectionFocus.h"
#include "SelectionFocus.h"

#include "kestro_control/AccessibleGraphicsObject.h"
#include "kestro_control/AccessibleTextItem.h"
#include "kestro_control/TextItem.h"

#include <QGraphicsProxyWidget>
#include <QGraphicsView>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace kestro {

namespace {

template <typename Interface, typename Object> QAccessibleInterface* Create(QObject* object)
{
    auto* const shown = qobject_cast<Object*>(object);
    return shown ? new Interface(*shown) : nullptr;
}

struct Row {
    std::string_view className;
    QAccessibleInterface* (*create)(QObject*);
};

constexpr Row kRows[] = {
    {"QGraphicsView", &Create<AccessibleGraphicsView, QGraphicsView>},
    {"QGraphicsObject", &Create<AccessibleGraphicsObject, QGraphicsObject>},
    {"QGraphicsProxyWidget", &Create<AccessibleProxyWidget, QGraphicsProxyWidget>},
    {"QGraphicsTextItem", &Create<AccessibleGraphicsTextItem, QGraphicsTextItem>},
    {"TextItem", &Create<AccessibleTextItem, TextItem>},
    {"kestro::SelectionFocus", &Create<AccessibleSelectionFocus, SelectionFocus>},
};

// Qt calls this for the class of an object and then for its base classes, until a factory
// knows one.
QAccessibleInterface* CreateInterface(const QString& className, QObject* object)
{
    const std::string name = className.toStdString();
    const auto* const row = std::find_if(std::begin(kRows), std::end(kRows),
                                         [&](const Row& each) { return each.className == name; });
    return row == std::end(kRows) ? nullptr : row->create(object);
}

// When the library is unloaded, Qt must not call the factory any more.
struct Removal {
    ~Removal() { QAccessible::removeFactory(&CreateInterface); }
};

} // namespace

void InstallGraphicsViewAccessibility()
{
    QAccessible::installFactory(&CreateInterface);
    static const Removal removal;
}

} // namespace kestro
