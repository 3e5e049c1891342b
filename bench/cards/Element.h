#pragma once

#include <QColor>
#include <QFont>
#include <QPainterPath>
#include <QRectF>
#include <QStringList>

#include "Flow.h"
#include "PaintRecord.h"

#include <optional>
#include <vector>

namespace bench {

// Characters whose format is not that of their text.
struct Span {
    int start = 0;
    int length = 0;
    QFont font;
    QColor color;
};

struct Text {
    // As the card shows it: what a line limit hides is not in it.
    QString shown;
    QFont font;
    QColor color;
    Qt::Alignment alignment = Qt::AlignLeft;
    qreal width = 0;
    int lineCount = 0;
    // Of a button, in the middle of its rectangle.
    bool isLabel = false;
    // Of the first line, below the top of the element.
    qreal baseline = 0;
    std::vector<Span> spans;
};

struct Picture {
    QString file;
    PaintedPicture painted;
};

// What one graphics item of a laid-out card shows. It has all that the other
// ways need to show the same.
struct Element {
    // In the element around it.
    QRectF rect;
    std::vector<PaintedFill> fills;
    std::optional<Text> text;
    std::optional<Picture> picture;
    std::vector<Element> children;
    // How the children follow each other.
    Flow flow;
};

// All texts, in reading order.
QStringList textsOf(const Element& element);

// The element and all that is in it.
int countOf(const Element& element);

} // namespace bench
