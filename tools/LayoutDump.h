#pragma once

#include <QByteArray>

class QGraphicsItem;

namespace plix::tool {

// The laid-out items of `card` as JSON, one line per item. The same card always
// gives the same bytes.
QByteArray dumpLayout(const QGraphicsItem& card);

} // namespace plix::tool
