#include "Icons.h"

#include "Canvas.h"

#include <QFont>
#include <QVector>
#include <QtMath>

namespace {

constexpr int kSide = 64;

QPolygonF star()
{
    QPolygonF points;
    for (int i = 0; i < 10; ++i) {
        const double radius = i % 2 == 0 ? 30 : 13;
        const double angle = qDegreesToRadians(i * 36.0 - 90);
        points << QPointF(32 + radius * qCos(angle), 34 + radius * qSin(angle));
    }
    return points;
}

void addCloud(Canvas& canvas, const QColor& color)
{
    canvas.useBrush(color);
    canvas.drawEllipse(QPointF(24, 34), 13, 13);
    canvas.drawEllipse(QPointF(38, 28), 16, 16);
    canvas.drawRoundedRect(QRectF(8, 32, 50, 18), 9, 9);
}

} // namespace

QImage drawStar(double filled)
{
    Canvas canvas(kSide, kSide);
    canvas.useBrush(QColor(0xD8, 0xDC, 0xE2));
    canvas.drawPolygon(star());
    canvas.setClipRect(QRectF(0, 0, kSide * filled, kSide));
    canvas.useBrush(QColor(0xF6, 0xA6, 0x23));
    canvas.drawPolygon(star());
    return canvas.finish();
}

QImage drawPin()
{
    Canvas canvas(kSide, kSide);
    canvas.useBrush(QColor(0xE0, 0x4F, 0x5F));
    QPainterPath path(QPointF(32, 61));
    path.cubicTo(28, 48, 12, 38, 12, 23);
    path.arcTo(QRectF(12, 3, 40, 40), 180, -180);
    path.cubicTo(52, 38, 36, 48, 32, 61);
    canvas.drawPath(path);
    canvas.useBrush(Qt::white);
    canvas.drawEllipse(QPointF(32, 23), 8, 8);
    return canvas.finish();
}

QImage drawClock()
{
    Canvas canvas(kSide, kSide);
    canvas.usePen(QColor(0x5B, 0x6B, 0x7F), 6);
    canvas.drawEllipse(QPointF(32, 32), 26, 26);
    canvas.drawPolyline(QVector<QPointF> {QPointF(32, 17), QPointF(32, 33), QPointF(43, 39)});
    return canvas.finish();
}

QImage drawCheck()
{
    Canvas canvas(kSide, kSide);
    canvas.useBrush(QColor(0x2E, 0xB3, 0x6B));
    canvas.drawEllipse(QPointF(32, 32), 29, 29);
    canvas.usePen(Qt::white, 7);
    canvas.drawPolyline(QVector<QPointF> {QPointF(19, 33), QPointF(28, 42), QPointF(45, 23)});
    return canvas.finish();
}

QImage drawCross()
{
    Canvas canvas(kSide, kSide);
    canvas.useBrush(QColor(0xD9, 0x48, 0x48));
    canvas.drawEllipse(QPointF(32, 32), 29, 29);
    canvas.usePen(Qt::white, 7);
    canvas.drawLine(22, 22, 42, 42);
    canvas.drawLine(42, 22, 22, 42);
    return canvas.finish();
}

QImage drawSun()
{
    Canvas canvas(kSide, kSide);
    canvas.usePen(QColor(0xF6, 0xB0, 0x1E), 5);
    for (int i = 0; i < 8; ++i) {
        const double angle = qDegreesToRadians(i * 45.0);
        const QPointF direction(qCos(angle), qSin(angle));
        canvas.drawLine(QPointF(32, 32) + direction * 21, QPointF(32, 32) + direction * 28);
    }
    canvas.useBrush(QColor(0xF6, 0xB0, 0x1E));
    canvas.drawEllipse(QPointF(32, 32), 14, 14);
    return canvas.finish();
}

QImage drawCloud()
{
    Canvas canvas(kSide, kSide);
    addCloud(canvas, QColor(0x9A, 0xAB, 0xC0));
    return canvas.finish();
}

QImage drawRain()
{
    Canvas canvas(kSide, kSide);
    canvas.translate(0, -8);
    addCloud(canvas, QColor(0x7F, 0x90, 0xA8));
    canvas.usePen(QColor(0x3B, 0x8E, 0xD9), 5);
    for (const int x : {18, 32, 46})
        canvas.drawLine(x, 57, x - 4, 66);
    return canvas.finish();
}

QImage drawPhone()
{
    Canvas canvas(kSide, kSide);
    canvas.useBrush(QColor(0x34, 0x40, 0x55));
    canvas.drawRoundedRect(QRectF(17, 3, 30, 58), 6, 6);
    canvas.useBrush(QColor(0xC9, 0xE4, 0xF7));
    canvas.drawRect(QRectF(21, 10, 22, 40));
    canvas.useBrush(Qt::white);
    canvas.drawEllipse(QPointF(32, 55), 3, 3);
    return canvas.finish();
}

QImage drawNote()
{
    Canvas canvas(kSide, kSide);
    canvas.usePen(QColor(0x8A, 0x5C, 0xD6), 5);
    canvas.drawPolyline(
        QVector<QPointF> {QPointF(22, 49), QPointF(22, 14), QPointF(50, 8), QPointF(50, 43)});
    canvas.useBrush(QColor(0x8A, 0x5C, 0xD6));
    canvas.drawEllipse(QPointF(16, 50), 9, 7);
    canvas.drawEllipse(QPointF(44, 44), 9, 7);
    return canvas.finish();
}

QImage drawBadge()
{
    Canvas canvas(2 * kSide, kSide);
    canvas.useBrush(QColor(0x1E, 0x88, 0xE5));
    canvas.drawRoundedRect(QRectF(2, 6, 124, 52), 26, 26);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(38);
    font.setBold(true);
    canvas.setFont(font);
    canvas.setPen(Qt::white);
    canvas.drawText(QRectF(2, 6, 124, 52), Qt::AlignCenter, QStringLiteral("NEW"));
    return canvas.finish();
}
