#include "Scenes.h"

#include "Canvas.h"

#include <QFont>
#include <QVector>
#include <QtMath>

#include <random>

namespace {

// The same numbers in every run and on every machine.
class RandomNumbers {
public:
    int between(int minimum, int maximum)
    {
        const auto range = static_cast<unsigned>(maximum - minimum + 1);
        return minimum + static_cast<int>(engine_() % range);
    }

private:
    std::minstd_rand engine_ {7};
};

} // namespace

QImage drawCoffee()
{
    Canvas canvas(600, 400);
    canvas.fillWithGradient({0, 0, 600, 270}, QColor(0xF7, 0xE7, 0xD0), QColor(0xE9, 0xC8, 0x9E));
    canvas.fillWithGradient({0, 270, 600, 130}, QColor(0x9B, 0x6B, 0x43), QColor(0x6E, 0x46, 0x2A));
    canvas.useBrush(QColor(0, 0, 0, 50));
    canvas.drawEllipse(QPointF(300, 322), 190, 28);
    canvas.useBrush(Qt::white);
    canvas.drawEllipse(QPointF(300, 312), 180, 26);
    canvas.usePen(Qt::white, 22);
    canvas.drawEllipse(QPointF(420, 225), 42, 42);
    canvas.useBrush(Qt::white);
    QPainterPath cup(QPointF(175, 160));
    cup.cubicTo(180, 340, 420, 340, 425, 160);
    canvas.drawPath(cup);
    canvas.drawEllipse(QPointF(300, 160), 125, 32);
    canvas.useBrush(QColor(0x6B, 0x3F, 0x22));
    canvas.drawEllipse(QPointF(300, 162), 112, 25);
    canvas.usePen(QColor(255, 255, 255, 150), 9);
    for (const int x : {250, 300, 350}) {
        QPainterPath steam(QPointF(x, 120));
        steam.cubicTo(x - 30, 95, x + 30, 70, x, 40);
        canvas.drawPath(steam);
    }
    return canvas.finish();
}

QImage drawSkyline()
{
    Canvas canvas(800, 450);
    canvas.fillWithGradient({0, 0, 800, 450}, QColor(0x2B, 0x2A, 0x5E), QColor(0xF4, 0x9A, 0x6B));
    canvas.useBrush(QColor(0xFF, 0xE0, 0xA8));
    canvas.drawEllipse(QPointF(590, 270), 62, 62);
    RandomNumbers numbers;
    for (int layer = 0; layer < 2; ++layer) {
        const QColor wall = layer == 0 ? QColor(0x5A, 0x45, 0x78) : QColor(0x2A, 0x25, 0x4A);
        for (int x = -10; x < 800;) {
            const int width = numbers.between(45, 85);
            const int height = numbers.between(120, 250) - layer * 40;
            canvas.fillRect(x, 450 - height, width, height, wall);
            for (int row = 450 - height + 14; layer == 1 && row < 440; row += 22) {
                for (int column = x + 8; column < x + width - 10; column += 16) {
                    if (numbers.between(0, 2) == 0)
                        canvas.fillRect(column, row, 7, 10, QColor(0xFF, 0xD9, 0x7A));
                }
            }
            x += width + numbers.between(2, 12);
        }
    }
    // A JPEG picture has no transparency.
    return canvas.finish().convertToFormat(QImage::Format_RGB32);
}

QImage drawMountain()
{
    Canvas canvas(800, 500);
    canvas.fillWithGradient({0, 0, 800, 500}, QColor(0x6F, 0xB7, 0xE9), QColor(0xE4, 0xF3, 0xFB));
    canvas.useBrush(QColor(0x6E, 0x82, 0x99));
    canvas.drawPolygon(QVector<QPointF> {QPointF(-20, 420), QPointF(260, 110), QPointF(540, 420)});
    canvas.useBrush(QColor(0x57, 0x6A, 0x80));
    canvas.drawPolygon(QVector<QPointF> {QPointF(300, 420), QPointF(570, 160), QPointF(860, 420)});
    canvas.useBrush(Qt::white);
    canvas.drawPolygon(QVector<QPointF> {QPointF(188, 190), QPointF(260, 110), QPointF(332, 190),
                                         QPointF(290, 178), QPointF(260, 205), QPointF(225, 175)});
    canvas.drawPolygon(QVector<QPointF> {QPointF(508, 220), QPointF(570, 160), QPointF(636, 219),
                                         QPointF(600, 210), QPointF(570, 235), QPointF(540, 208)});
    canvas.useBrush(QColor(0x4C, 0x9A, 0x5F));
    QPainterPath meadow(QPointF(0, 390));
    meadow.cubicTo(200, 330, 500, 440, 800, 370);
    meadow.lineTo(800, 500);
    meadow.lineTo(0, 500);
    canvas.drawPath(meadow);
    return canvas.finish();
}

// Cards cut it at its top and bottom, so nothing important is there.
QImage drawMap()
{
    Canvas canvas(600, 300);
    canvas.fillRect(0, 0, 600, 300, QColor(0xEE, 0xF1, 0xE6));
    canvas.useBrush(QColor(0xC6, 0xE3, 0xB8));
    canvas.drawRoundedRect(QRectF(60, 40, 130, 90), 14, 14);
    canvas.usePen(QColor(0xA9, 0xD3, 0xF0), 34);
    QPainterPath river(QPointF(-20, 250));
    river.cubicTo(180, 160, 330, 330, 620, 190);
    canvas.drawPath(river);
    canvas.usePen(Qt::white, 14);
    for (const int x : {40, 210, 330, 470, 560})
        canvas.drawLine(x, -10, x, 310);
    for (const int y : {20, 150, 230})
        canvas.drawLine(-10, y, 610, y);
    canvas.usePen(QColor(0x29, 0x79, 0xFF), 8);
    canvas.drawPolyline(QVector<QPointF> {QPointF(40, 230), QPointF(210, 230), QPointF(210, 150),
                                          QPointF(470, 150), QPointF(470, 85)});
    canvas.useBrush(QColor(0x29, 0x79, 0xFF));
    canvas.drawEllipse(QPointF(40, 230), 12, 12);
    canvas.useBrush(QColor(0xE0, 0x4F, 0x5F));
    canvas.drawEllipse(QPointF(470, 85), 15, 15);
    canvas.useBrush(Qt::white);
    canvas.drawEllipse(QPointF(470, 85), 6, 6);
    return canvas.finish();
}

QImage drawNoodles()
{
    Canvas canvas(600, 400);
    canvas.fillWithGradient({0, 0, 600, 400}, QColor(0x3C, 0x2A, 0x25), QColor(0x5A, 0x3B, 0x30));
    canvas.useBrush(QColor(0xC0, 0x39, 0x2B));
    canvas.drawEllipse(QPointF(300, 215), 225, 160);
    canvas.useBrush(QColor(0xF2, 0xC1, 0x6B));
    canvas.drawEllipse(QPointF(300, 212), 195, 134);
    canvas.usePen(QColor(0xFF, 0xE7, 0xAE), 10);
    for (int i = 0; i < 7; ++i) {
        QPainterPath noodle(QPointF(150, 180 + i * 14));
        noodle.cubicTo(230, 120 + i * 18, 330, 280 - i * 10, 430, 170 + i * 14);
        canvas.drawPath(noodle);
    }
    canvas.useBrush(Qt::white);
    canvas.drawEllipse(QPointF(375, 180), 48, 38);
    canvas.useBrush(QColor(0xF7, 0xA2, 0x1B));
    canvas.drawEllipse(QPointF(375, 180), 22, 19);
    canvas.useBrush(QColor(0x4C, 0xA3, 0x4C));
    for (const QPointF& leek :
         {QPointF(220, 160), QPointF(245, 275), QPointF(310, 290), QPointF(400, 262)})
        canvas.drawEllipse(leek, 12, 9);
    canvas.usePen(QColor(0x8D, 0x5A, 0x35), 11);
    canvas.drawLine(60, 40, 330, 190);
    canvas.drawLine(95, 25, 350, 170);
    return canvas.finish();
}

QImage drawConcert()
{
    Canvas canvas(640, 320);
    canvas.fillWithGradient({0, 0, 640, 320}, QColor(0x1B, 0x12, 0x3A), QColor(0x6A, 0x1B, 0x9A));
    const QColor beams[] = {
        {0xFF, 0x40, 0x81, 110}, {0x40, 0xC4, 0xFF, 110}, {0xFF, 0xD7, 0x40, 110}};
    for (int i = 0; i < 3; ++i) {
        canvas.useBrush(beams[i]);
        const double top = 140 + i * 180;
        canvas.drawPolygon(QVector<QPointF> {QPointF(top - 8, 0), QPointF(top + 8, 0),
                                             QPointF(460 - i * 100, 320),
                                             QPointF(280 - i * 100, 320)});
    }
    canvas.useBrush(QColor(0x0B, 0x08, 0x18));
    RandomNumbers numbers;
    for (int x = 0; x < 660; x += 26) {
        const int head = 270 + numbers.between(-12, 12);
        canvas.drawEllipse(QPointF(x, head), 12, 13);
        canvas.drawRoundedRect(QRectF(x - 15, head + 10, 30, 70), 12, 12);
    }
    return canvas.finish();
}

QImage drawHeadphones()
{
    Canvas canvas(400, 400);
    canvas.usePen(QColor(0x2F, 0x3A, 0x4A), 26);
    canvas.drawArc(QRectF(80, 60, 240, 270), 0, 180 * 16);
    canvas.useBrush(QColor(0x2F, 0x3A, 0x4A));
    canvas.drawRoundedRect(QRectF(52, 190, 66, 130), 30, 30);
    canvas.drawRoundedRect(QRectF(282, 190, 66, 130), 30, 30);
    canvas.useBrush(QColor(0xE0, 0x7A, 0x3F));
    canvas.drawRoundedRect(QRectF(102, 200, 30, 110), 14, 14);
    canvas.drawRoundedRect(QRectF(268, 200, 30, 110), 14, 14);
    return canvas.finish();
}

QImage drawPlant()
{
    Canvas canvas(400, 400);
    canvas.useBrush(QColor(0x3F, 0x8F, 0x57));
    for (const double angle : {-60.0, -30.0, 0.0, 30.0, 60.0}) {
        canvas.save();
        canvas.translate(200, 270);
        canvas.rotate(angle);
        QPainterPath leaf(QPointF(0, 0));
        leaf.cubicTo(-46, -80, -30, -170, 0, -215);
        leaf.cubicTo(30, -170, 46, -80, 0, 0);
        canvas.drawPath(leaf);
        canvas.restore();
    }
    canvas.useBrush(QColor(0xC9, 0x6F, 0x4A));
    canvas.drawPolygon(QVector<QPointF> {QPointF(120, 265), QPointF(280, 265), QPointF(258, 385),
                                         QPointF(142, 385)});
    canvas.drawRoundedRect(QRectF(108, 248, 184, 34), 8, 8);
    return canvas.finish();
}

QImage drawAlbum()
{
    Canvas canvas(300, 300);
    canvas.fillWithGradient({0, 0, 300, 300}, QColor(0xFF, 0x8A, 0x65), QColor(0x8E, 0x24, 0xAA));
    for (int i = 0; i < 6; ++i) {
        canvas.usePen(QColor(255, 255, 255, 60 + i * 30), 6);
        canvas.drawEllipse(QPointF(150, 150), 130 - i * 22, 130 - i * 22);
    }
    return canvas.finish();
}

QImage drawPoster(const QString& title)
{
    Canvas canvas(300, 450);
    canvas.fillWithGradient({0, 0, 300, 450}, QColor(0x0E, 0x1F, 0x3D), QColor(0x1F, 0x6F, 0x8B));
    canvas.useBrush(QColor(0xFF, 0xF3, 0xC4));
    canvas.drawEllipse(QPointF(205, 110), 55, 55);
    canvas.useBrush(QColor(0x08, 0x12, 0x24));
    canvas.drawPolygon(QVector<QPointF> {QPointF(40, 330), QPointF(260, 330), QPointF(220, 375),
                                         QPointF(80, 375)});
    canvas.drawRect(QRectF(146, 180, 7, 150));
    canvas.useBrush(QColor(0xE8, 0xEE, 0xF4));
    canvas.drawPolygon(QVector<QPointF> {QPointF(160, 190), QPointF(160, 320), QPointF(245, 320)});
    QFont font(QStringLiteral("Noto Sans CJK KR"));
    font.setPixelSize(34);
    font.setBold(true);
    canvas.setFont(font);
    canvas.setPen(Qt::white);
    canvas.drawText(QRectF(0, 385, 300, 55), Qt::AlignCenter, title);
    return canvas.finish();
}

QImage drawLogo()
{
    Canvas canvas(240, 80);
    canvas.useBrush(QColor(0x00, 0x89, 0x7B));
    canvas.drawEllipse(QPointF(40, 40), 34, 34);
    canvas.usePen(Qt::white, 8);
    canvas.drawArc(QRectF(22, 22, 36, 36), 45 * 16, 270 * 16);
    canvas.useBrush(QColor(0x00, 0x89, 0x7B));
    for (int i = 0; i < 4; ++i)
        canvas.drawRoundedRect(QRectF(90 + i * 38, 24 + (i % 2) * 10, 26, 32), 8, 8);
    return canvas.finish();
}

QImage drawAvatar(const QColor& background, const QColor& hair, const QColor& shirt)
{
    Canvas canvas(120, 120);
    canvas.fillRect(0, 0, 120, 120, background);
    canvas.useBrush(shirt);
    canvas.drawEllipse(QPointF(60, 122), 44, 38);
    canvas.useBrush(hair);
    canvas.drawEllipse(QPointF(60, 48), 30, 32);
    canvas.useBrush(QColor(0xF3, 0xCB, 0xA5));
    canvas.drawEllipse(QPointF(60, 56), 23, 27);
    return canvas.finish();
}
