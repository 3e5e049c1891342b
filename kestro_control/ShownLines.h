#pragma once

#include <QPointF>
#include <QRectF>
#include <QTextLayout>

#include <memory>
#include <vector>

class ElidedLine;
class QPainter;
class QTextBlock;
class QTextDocument;

// The lines of a document that are shown under a line limit: which, where, and
// with which ellipses. A picture of the document as it is laid out at the time;
// it must not be used after the document has changed.
class ShownLines {
public:
    // No line.
    ShownLines();
    // `maxCount` 0: no limit.
    ShownLines(const QTextDocument& document, int maxCount, bool elide);
    ~ShownLines();
    ShownLines(ShownLines&&) noexcept;
    ShownLines& operator=(ShownLines&&) noexcept;

    int Count() const;
    bool IsElided() const;
    QRectF BoundingRect() const;

    // From the top of the first line to its baseline. There must be a line.
    qreal FirstAscent() const;

    // Draws the lines that may leave ink in `exposed`.
    void Draw(QPainter* painter, const QRectF& exposed) const;

private:
    struct Line {
        QTextLine line;
        // Where the line's own coordinates have their origin.
        QPointF origin;
        // The text on it: natural width, full height.
        QRectF rect;
        Qt::Alignment alignment;
        std::unique_ptr<ElidedLine> elided;
    };
    class Builder;

    qreal WidestLine() const;
    void AlignLinesIn(qreal width);

    std::vector<Line> lines_;
    QRectF boundingRect_;
};
