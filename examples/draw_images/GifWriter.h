#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QVector>

// Writes animated GIF pictures, which Qt only reads.
//
//     GifWriter writer({120, 60}, palette);
//     writer.addFrame(first, 100);
//     writer.addFrame(second, 100);
//     file.write(writer.finish());
class GifWriter {
public:
    static constexpr int endless = 0;

    // `palette` has 2 to 256 colours; the first one is transparent. The picture
    // plays once and `repetitions` times again, or without an end.
    GifWriter(const QSize& size, const QVector<QRgb>& palette, int repetitions = endless);

    // `frame` has the picture's size; each pixel gets the nearest colour of the
    // palette. It is shown for `milliseconds`, to the nearest ten.
    void addFrame(const QImage& frame, int milliseconds);

    // The file. Nothing can be added afterwards.
    QByteArray finish();

private:
    void writeHeader(int repetitions);
    QByteArray indexes(const QImage& frame) const;

    QSize size_;
    QVector<QRgb> palette_;
    int colorBits_;
    QByteArray bytes_;
};
