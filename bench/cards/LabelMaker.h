#pragma once

#include <memory>

class QGraphicsWidget;

namespace bench {

struct Element;

// A label in a proxy, or a box with a layout and all that is in it. Sizes of
// leaves are set; labels are not asked for the heights that are known.
std::unique_ptr<QGraphicsWidget> makeLabels(const Element& element);

} // namespace bench
