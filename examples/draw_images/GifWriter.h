#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QVector>

// Writes animated GIF files. Qt can only read them.
//
//     GifWriter writer({120, 60}, palette);
//     writer.addFrame(first, 100);
//     writer.addFrame(second, 100);
//     file.write(writer.finish());
class GifWriter {
public:
    static constexpr int kEndless = 0;

    // `palette` has 2 to 256 colours; the first one is transparent. The animation
    // plays once and is repeated `repetitions` times, or endlessly.
    GifWriter(const QSize& size, const QVector<QRgb>& palette, int repetitions = kEndless);

    // `frame` must have the size of the animation. Each pixel gets the nearest
    // colour of the palette. `milliseconds` is rounded to a multiple of ten.
    void addFrame(const QImage& frame, int milliseconds);

    // Returns the file. No frame can be added afterwards.
    QByteArray finish();

private:
    void writeHeader(int repetitions);
    QByteArray indexes(const QImage& frame) const;

    QSize size_;
    QVector<QRgb> palette_;
    int colorBits_;
    QByteArray bytes_;
};
