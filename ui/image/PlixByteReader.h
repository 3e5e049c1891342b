#pragma once

#include <QByteArray>

// Reads a file's bytes in their order; what lies behind the end is zero.
class PlixByteReader {
public:
    // `bytes` must stay as they are meanwhile.
    explicit PlixByteReader(const QByteArray& bytes)
        : bytes_(bytes)
    {
    }

    bool AtEnd() const { return at_ >= bytes_.size(); }
    void Skip(qint64 count) { at_ += count; }
    int TakeByte()
    {
        const char byte = AtEnd() ? '\0' : bytes_[static_cast<int>(at_)];
        Skip(1);
        return static_cast<unsigned char>(byte);
    }
    // As many as there are, without a copy of them.
    QByteArray TakeBytes(int count)
    {
        const int left = AtEnd() ? 0 : bytes_.size() - static_cast<int>(at_);
        QByteArray taken =
            QByteArray::fromRawData(bytes_.constData() + (AtEnd() ? 0 : at_), qMin(count, left));
        Skip(count);
        return taken;
    }
    int TakeLittleEndian16()
    {
        const int low = TakeByte();
        const int high = TakeByte();
        return high << 8 | low;
    }

private:
    const QByteArray& bytes_;
    qint64 at_ = 0;
};
