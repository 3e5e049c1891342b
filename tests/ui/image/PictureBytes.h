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

// The bytes of a file of that format.
QByteArray pictureBytes(const QImage& image, const char* format = "PNG");

// ----- GIF

// The beginning of a GIF file, up to its first block. Colour 0 is black, 1 red, 2 green,
// 3 blue, 4 white.
QByteArray gifHead(const QSize& screen);
// One frame of a single colour (see gifHead()), in the corner of the screen.
QByteArray gifFrame(const QSize& size, int color);
// The block that sets how long the next frame is shown.
QByteArray gifDelay(int hundredths);
// Ten minutes, longer than any test.
constexpr int kLongGifDelay = 60'000;
// The block that sets how often the animation is repeated; 0: for ever.
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
// Compressed zeros.
QByteArray zlibZeros(int count);
// A black picture with one bit per pixel. `more` are chunks after its header.
QByteArray blackPng(const QSize& size, const QByteArray& more = {});

// ----- JPEG

QByteArray jpegSegment(int marker, const QByteArray& data);
// A progressive grey picture of `scans` passes of a few bytes each.
QByteArray jpegOfScans(const QSize& size, int scans);

// ----- BMP

// A header that announces this size, without pixels. The height may be negative.
QByteArray bmpHead(qint32 width, qint32 height);

} // namespace plix::test
