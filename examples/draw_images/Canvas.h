#pragma once

#include <QImage>
#include <QPainter>
#include <QPainterPath>

// A picture that is being drawn: transparent at first, with soft edges.
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

    // A line instead of a filling, with round ends.
    void useLine(const QColor& color, double width)
    {
        setPen(QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        setBrush(Qt::NoBrush);
    }

    void useFilling(const QBrush& brush)
    {
        setPen(Qt::NoPen);
        setBrush(brush);
    }

    void fillDown(const QRectF& area, const QColor& top, const QColor& bottom)
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
