#pragma once

#include <QAccessible>

#include <functional>
#include <string>
#include <vector>

namespace plix::test {

// The accessible tree, as a client walks through it.

// Fails the test and throws if there is no interface.
QAccessibleInterface& accessible(QObject* object);

std::string roleOf(const QAccessibleInterface& found);
std::string nameOf(const QAccessibleInterface& found);

// Calls `visit` for an interface and for all below it, each before its children. Fails the
// test wherever the way up or sideways does not fit the way down.
void forEachAccessible(QAccessibleInterface& root,
                       const std::function<void(QAccessibleInterface&)>& visit);

// A line for each interface: its role and name, behind two blanks for each level.
std::string treeOf(QAccessibleInterface& root);

bool canPress(QAccessibleInterface& found);
void press(QAccessibleInterface& found);

} // namespace plix::test
