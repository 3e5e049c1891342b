#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>

// A painter with its own picture, which is transparent initially.
class Canvas : public QPainter {
public:
    Canvas(int width, int height)
        : image_(width, height, QImage::Format_ARGB32)
    {
        image_.fill(Qt::transparent);
        begin(&image_);
        setRenderHint(Antialiasing);
        setPen(Qt::NoPen);
    }

    // Draws lines with round ends, without a fill.
    void usePen(const QColor& color, double width)
    {
        setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        setBrush(Qt::NoBrush);
    }

    // Fills shapes, without a line.
    void useBrush(const QBrush& brush)
    {
        setPen(Qt::NoPen);
        setBrush(brush);
    }

    // Fills `area` with a gradient from top to bottom.
    void fillWithGradient(const QRectF& area, const QColor& top, const QColor& bottom)
    {
        QLinearGradient gradient(area.topLeft(), area.bottomLeft());
        gradient.setColorAt(0, top);
        gradient.setColorAt(1, bottom);
        fillRect(area, gradient);
    }

    QImage finish()
    {
        end();
        return image_;
    }

private:
    QImage image_;
};
