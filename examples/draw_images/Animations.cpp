#include "Animations.h"

#include "Canvas.h"
#include "GifWriter.h"

#include <QVector>
#include <QtMath>

namespace {

// A palette for soft edges: the transparent colour, then shades from white to
// `color`.
QVector<QRgb> shadesOf(const QColor& color)
{
    constexpr int kCount = 15;
    QVector<QRgb> palette {qRgba(0, 0, 0, 0)};
    for (int i = 0; i < kCount; ++i) {
        const double share = i / (kCount - 1.0);
        const auto mixed = [&](int full) { return qRound(255 + (full - 255) * share); };
        palette.append(qRgb(mixed(color.red()), mixed(color.green()), mixed(color.blue())));
    }
    return palette;
}

} // namespace

QByteArray drawEqualizer()
{
    constexpr int kFrames = 12;
    const QVector<QRgb> palette {qRgba(0, 0, 0, 0), qRgb(0x8A, 0x5C, 0xD6)};
    GifWriter writer({120, 60}, palette);
    for (int frame = 0; frame < kFrames; ++frame) {
        Canvas canvas(120, 60);
        // The background may have any colour, so there are no shades for soft edges.
        canvas.setRenderHint(QPainter::Antialiasing, false);
        canvas.useBrush(QColor(palette[1]));
        for (int bar = 0; bar < 8; ++bar) {
            const double phase = 2 * M_PI * (frame + bar * bar * 1.7) / kFrames;
            const double height = 28 + 22 * qSin(phase);
            canvas.drawRoundedRect(QRectF(6 + bar * 14, 56 - height, 9, height), 3, 3);
        }
        writer.addFrame(canvas.finish(), 90);
    }
    return writer.finish();
}

QByteArray drawRing()
{
    constexpr int kFrames = 16;
    const QColor color(0x1E, 0x88, 0xE5);
    GifWriter writer({64, 64}, shadesOf(color));
    for (int frame = 0; frame < kFrames; ++frame) {
        Canvas canvas(64, 64);
        canvas.fillRect(0, 0, 64, 64, Qt::white);
        canvas.usePen(QColor(0xD8, 0xE9, 0xF9), 8);
        canvas.drawEllipse(QPointF(32, 32), 24, 24);
        canvas.usePen(color, 8);
        canvas.drawArc(QRectF(8, 8, 48, 48), -frame * 360 * 16 / kFrames, 100 * 16);
        writer.addFrame(canvas.finish(), 60);
    }
    return writer.finish();
}

QByteArray drawFlag()
{
    constexpr int kFrames = 10;
    const QVector<QRgb> palette {qRgba(0, 0, 0, 0), qRgb(0x6B, 0x4A, 0x2B), qRgb(0xD3, 0x2F, 0x2F),
                                 qRgb(0xFF, 0xFF, 0xFF), qRgb(0xF5, 0xC5, 0x18)};
    GifWriter writer({200, 120}, palette);
    for (int frame = 0; frame < kFrames; ++frame) {
        Canvas canvas(200, 120);
        // The palette has no shades for soft edges.
        canvas.setRenderHint(QPainter::Antialiasing, false);
        canvas.fillRect(8, 4, 6, 112, QColor(palette[1]));
        for (int x = 14; x < 190; ++x) {
            const double wave =
                (x - 14) * 0.05 * qSin(2 * M_PI * (x / 80.0 - frame / double(kFrames)));
            const int top = qRound(12 + wave);
            canvas.fillRect(x, top, 1, 24, QColor(palette[2]));
            canvas.fillRect(x, top + 24, 1, 24, QColor(palette[3]));
            canvas.fillRect(x, top + 48, 1, 24, QColor(palette[4]));
        }
        writer.addFrame(canvas.finish(), 80);
    }
    return writer.finish();
}
