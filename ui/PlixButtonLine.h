#pragma once

#include <QRectF>
#include <QTextLayout>

class QFont;
class QPainter;
class QString;

// The label of a button in one line, laid out once for many paints.
class PlixButtonLine {
public:
    PlixButtonLine(const QString& label, const QFont& font);

    // Draws it with the painter's pen in the middle of `rect`, and nothing outside.
    // Changes the painter's clip.
    void Draw(QPainter& painter, const QRectF& rect) const;

private:
    QPointF PositionIn(const QRectF& rect) const;

    QTextLayout layout_;
    // What the glyphs paint, with room for rounding to pixels. Its origin is that of
    // the line.
    QRectF ink_;
};
