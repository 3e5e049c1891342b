#pragma once

#include "Element.h"

class QGraphicsItem;

namespace bench {

// Reads a laid-out card through Qt: what its items say and what they paint.
Element readElement(QGraphicsItem& card);

} // namespace bench
