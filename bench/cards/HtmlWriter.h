#pragma once

#include <QString>

namespace bench {

struct Element;

// The card as HTML of the kind that QTextDocument reads: boxes are tables, in
// the widths that are known.
QString htmlOf(const Element& card);

} // namespace bench
