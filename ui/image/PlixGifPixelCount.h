#pragma once

#include <QByteArray>

#include <array>

// Counts the pixels that a frame of a GIF file unpacks to, without unpacking
// them: a byte can stand for thousands.
class PlixGifPixelCount {
public:
    static constexpr int kMaximumBits = 12;

    // The bits of a pixel, at most kMaximumBits.
    explicit PlixGifPixelCount(int bits);

    // The next bytes of the frame's data.
    void Take(const char* bytes, int size);
    qint64 Count() const { return count_; }

private:
    void TakeCode(int code);
    void Clear();

    const int pixelBits_;
    bool isOver_ = false;
    qint64 count_ = 0;
    quint32 unread_ = 0;
    int unreadBits_ = 0;
    int codeBits_ = 0;
    int nextCode_ = 0;
    int previous_ = 0;
    std::array<quint16, 1 << kMaximumBits> lengths_; // of the pixels behind a code
};
