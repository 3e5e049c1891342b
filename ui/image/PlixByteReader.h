#pragma once

#include <QByteArray>

// Reads a file's bytes in order. Beyond the end it reads zeros.
class PlixByteReader {
public:
    // Keeps a reference: `bytes` must outlive the reader.
    explicit PlixByteReader(const QByteArray& bytes)
        : bytes_(bytes)
    {
    }

    bool AtEnd() const { return at_ >= bytes_.size(); }
    void Skip(qint64 count) { at_ += count; }
    int ReadByte()
    {
        const char byte = AtEnd() ? '\0' : bytes_[static_cast<int>(at_)];
        Skip(1);
        return static_cast<unsigned char>(byte);
    }
    // At most `count` bytes, which are not copied: valid as long as the file's are.
    QByteArray ReadBytes(int count)
    {
        const int left = AtEnd() ? 0 : bytes_.size() - static_cast<int>(at_);
        QByteArray read =
            QByteArray::fromRawData(bytes_.constData() + (AtEnd() ? 0 : at_), qMin(count, left));
        Skip(count);
        return read;
    }
    int ReadLittleEndian16()
    {
        const int low = ReadByte();
        const int high = ReadByte();
        return high << 8 | low;
    }

private:
    const QByteArray& bytes_;
    qint64 at_ = 0;
};
