#include "support/AccessibleTree.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMetaEnum>

#include <stdexcept>

namespace plix::test {
namespace {

// The parent that Qt names for an embedded widget is the application.
bool isEmbeddedWidget(const QAccessibleInterface& found)
{
    return found.parent() == QAccessible::queryAccessibleInterface(qApp);
}

} // namespace

QAccessibleInterface& accessible(QObject* object)
{
    QAccessibleInterface* const found = QAccessible::queryAccessibleInterface(object);
    if (!found)
        throw std::runtime_error("there is no accessible interface");
    return *found;
}

std::string roleOf(const QAccessibleInterface& found)
{
    return QMetaEnum::fromType<QAccessible::Role>().valueToKey(found.role());
}

std::string nameOf(const QAccessibleInterface& found)
{
    return found.text(QAccessible::Name).toStdString();
}

void forEachAccessible(QAccessibleInterface& root,
                       const std::function<void(QAccessibleInterface&)>& visit)
{
    visit(root);
    const int count = root.childCount();
    EXPECT_EQ(root.child(-1), nullptr);
    EXPECT_EQ(root.child(count), nullptr);
    for (int i = 0; i < count; ++i) {
        QAccessibleInterface* const child = root.child(i);
        ASSERT_NE(child, nullptr) << i;
        EXPECT_TRUE(child->isValid());
        EXPECT_EQ(root.indexOfChild(child), i);
        if (!isEmbeddedWidget(*child)) {
            EXPECT_EQ(child->parent(), &root);
            EXPECT_EQ(child->window(), root.window());
        }
        forEachAccessible(*child, visit);
    }
}

std::string treeOf(QAccessibleInterface& root)
{
    std::string tree;
    forEachAccessible(root, [&](QAccessibleInterface& found) {
        std::string line = roleOf(found);
        const std::string name = nameOf(found);
        if (!name.empty())
            line += ' ' + name;
        for (const QAccessibleInterface* at = &found; at && at != &root; at = at->parent())
            line.insert(0, "  ");
        tree += line + '\n';
    });
    return tree;
}

bool canPress(QAccessibleInterface& found)
{
    QAccessibleActionInterface* const actions = found.actionInterface();
    return actions && actions->actionNames().contains(QAccessibleActionInterface::pressAction());
}

void press(QAccessibleInterface& found)
{
    found.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

} // namespace plix::test
