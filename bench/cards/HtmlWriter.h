#pragma once

#include <QColor>
#include <QString>

namespace bench {

struct Element;

// A card as HTML of the kind that QTextDocument reads: boxes with a background
// and rows are tables, in the widths that are known.
struct HtmlCard {
    QString html;
    // What the document has around it, and behind it.
    qreal topMargin = 0;
    qreal bottomMargin = 0;
    QColor background;
};

HtmlCard htmlOf(const Element& card);

} // namespace bench
