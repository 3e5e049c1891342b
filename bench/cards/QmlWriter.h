#pragma once

#include <QByteArray>

namespace bench {

struct Element;

// The card as a QML file: boxes are row and column layouts.
QByteArray qmlOf(const Element& card);

} // namespace bench
