#include "ui/image/PlixGifPixelCount.h"

#include <algorithm>

namespace {

constexpr int kNoCode = -1;
constexpr int kMaximumCodes = 1 << PlixGifPixelCount::kMaximumBits;

} // namespace

PlixGifPixelCount::PlixGifPixelCount(int bits)
    : pixelBits_(bits)
{
    std::fill_n(lengths_.begin(), 1 << bits, quint16 {1});
    Clear();
}

void PlixGifPixelCount::Add(const char* bytes, int size)
{
    for (int i = 0; i < size && !isOver_; ++i) {
        unread_ |= static_cast<quint32>(static_cast<unsigned char>(bytes[i])) << unreadBits_;
        unreadBits_ += 8;
        while (unreadBits_ >= codeBits_ && !isOver_) {
            const int code = static_cast<int>(unread_ & ((1U << codeBits_) - 1));
            unread_ >>= codeBits_;
            unreadBits_ -= codeBits_;
            AddCode(code);
        }
    }
}

inline void PlixGifPixelCount::AddCode(int code)
{
    const int clearCode = 1 << pixelBits_;
    if (code == clearCode) {
        Clear();
        return;
    }
    // The end code, or a code after one that stands for nothing: the decoder stops.
    if (code == clearCode + 1 || previous_ >= nextCode_) {
        isOver_ = true;
        return;
    }
    if (previous_ == kNoCode) {
        ++count_;
        previous_ = code;
        return;
    }
    // The next free code stands for the previous code's pixels and one more. The
    // code that was just read may be that one.
    const auto length = static_cast<quint16>(lengths_[static_cast<std::size_t>(previous_)] + 1);
    count_ += code < nextCode_ ? lengths_[static_cast<std::size_t>(code)] : length;
    previous_ = code;
    if (nextCode_ >= kMaximumCodes)
        return;
    lengths_[static_cast<std::size_t>(nextCode_)] = length;
    ++nextCode_;
    if (nextCode_ == 1 << codeBits_ && codeBits_ < kMaximumBits)
        ++codeBits_;
}

void PlixGifPixelCount::Clear()
{
    codeBits_ = pixelBits_ + 1;
    nextCode_ = (1 << pixelBits_) + 2;
    previous_ = kNoCode;
}
