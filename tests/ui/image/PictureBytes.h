#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QSize>

#include <utility>
#include <vector>

namespace plix::test {

QByteArray littleEndian16(int value);
QByteArray bigEndian16(int value);
QByteArray bigEndian32(quint32 value);

// The picture as a file of that format.
QByteArray pictureBytes(const QImage& image, const char* format = "PNG");

// ----- GIF

// The beginning of a GIF file, up to its first block. Colour 0 is black, 1 red, 2 green,
// 3 blue, 4 white.
QByteArray gifHead(const QSize& screen);
// One frame, all of one of these colours, at the screen's corner.
QByteArray gifFrame(const QSize& size, int color);
// What says how long the next frame is shown.
QByteArray gifDelay(int hundredths);
// Ten minutes: no test lasts so long.
constexpr int kLongGifDelay = 60'000;
// What says how often all is repeated; 0 for ever.
QByteArray gifLoops(int count);

// Frames of these colours. Their delay is kLongGifDelay, so that none ends by itself:
// AnimationFrames ends them.
QByteArray gifAnimation(const QSize& size, const std::vector<int>& colors, int loops = 0);
// The same with frames of 10 ms, repeated for ever.
QByteArray fastGifAnimation(const QSize& size, const std::vector<int>& colors);

// ----- PNG

QByteArray pngSignature();
QByteArray pngChunk(const QByteArray& type, const QByteArray& data);
QByteArray pngHeader(const QSize& size, int bitDepth, int colorType);
// Zeros, as PNG packs them.
QByteArray zlibZeros(int count);
// A whole black picture of one bit a pixel, with more chunks after the header.
QByteArray blackPng(const QSize& size, const QByteArray& more = {});

// ----- JPEG

QByteArray jpegSegment(int marker, const QByteArray& data);
// A progressive grey picture of `scans` passes, hardly any bytes each.
QByteArray jpegOfScans(const QSize& size, int scans);

// ----- BMP

// A head that announces this size with nothing behind it; the height may be negative.
QByteArray bmpHead(qint32 width, qint32 height);

} // namespace plix::test
