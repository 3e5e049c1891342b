#pragma once

#include <QColor>

namespace bench {

struct Element;

// The background of an element, as the other ways can show it.
struct BoxLook {
    // Invalid: none.
    QColor color;
    qreal radius = 0;
};

BoxLook lookOf(const Element& element);

} // namespace bench
