#pragma once

#include <QByteArray>

class QGraphicsItem;

namespace plix::tool {

// The tree of laid-out items below and including `card`, as JSON with one item
// on each line. The same card gives the same bytes.
QByteArray dumpLayout(const QGraphicsItem& card);

} // namespace plix::tool
