#pragma once

#include <QByteArray>

#include <array>

// Counts the pixels that a frame of a GIF file unpacks to, without unpacking them:
// one byte can stand for thousands of pixels.
class PlixGifPixelCount {
public:
    static constexpr int kMaximumBits = 12;

    // `bits`: of a pixel, at most kMaximumBits.
    explicit PlixGifPixelCount(int bits);

    // Counts the pixels of the next bytes of the frame's data.
    void Add(const char* bytes, int size);
    qint64 Count() const { return count_; }

private:
    void AddCode(int code);
    void Clear();

    const int pixelBits_;
    bool isOver_ = false;
    qint64 count_ = 0;
    quint32 unread_ = 0;
    int unreadBits_ = 0;
    int codeBits_ = 0;
    int nextCode_ = 0;
    int previous_ = 0;
    std::array<quint16, 1 << kMaximumBits> lengths_; // how many pixels each code stands for
};
