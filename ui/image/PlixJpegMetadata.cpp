#include "ui/image/PlixJpegMetadata.h"

#include <QtEndian>

#include <algorithm>

namespace plix {

namespace {

constexpr int kMarkerBytes = 2;

// The position of the next marker, or the end of the bytes. Coded pixels and fill
// bytes may come before it.
int FindMarker(const QByteArray& bytes, int from)
{
    int at = bytes.indexOf('\xFF', from);
    while (at >= 0 && at + 1 < bytes.size()) {
        const char next = bytes[at + 1];
        if (next != '\0' && next != '\xFF')
            return at;
        at = bytes.indexOf('\xFF', at + 1);
    }
    return bytes.size();
}

// Whether nothing follows the marker that belongs to it.
bool IsBare(int marker)
{
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

bool IsNeeded(int marker)
{
    constexpr int kApplication0 = 0xE0; // JFIF
    constexpr int kApplication14 = 0xEE; // Adobe
    constexpr int kComment = 0xFE;
    const bool isApplication = marker >= kApplication0 && marker <= kApplication0 + 15;
    return marker != kComment
        && (!isApplication || marker == kApplication0 || marker == kApplication14);
}

int SegmentEnd(const QByteArray& bytes, int marker)
{
    const int at = marker + kMarkerBytes;
    if (at + 2 > bytes.size())
        return bytes.size();
    const int length = qFromBigEndian<quint16>(bytes.constData() + at);
    return std::min(at + std::max(length, 2), bytes.size());
}

} // namespace

PlixStrippedJpeg StripJpegMetadata(const QByteArray& bytes)
{
    constexpr int kEndOfImage = 0xD9;
    constexpr int kStartOfScan = 0xDA;
    PlixStrippedJpeg jpeg;
    int keptUpTo = 0;
    int at = FindMarker(bytes, kMarkerBytes);
    while (at < bytes.size()) {
        const int marker = static_cast<unsigned char>(bytes[at + 1]);
        if (marker == kEndOfImage)
            break;
        const int end = IsBare(marker) ? at + kMarkerBytes : SegmentEnd(bytes, at);
        if (marker == kStartOfScan)
            ++jpeg.scans;
        if (!IsNeeded(marker)) {
            jpeg.bytes.append(bytes.constData() + keptUpTo, at - keptUpTo);
            keptUpTo = end;
        }
        at = FindMarker(bytes, end);
    }
    jpeg.bytes.append(bytes.constData() + keptUpTo, bytes.size() - keptUpTo);
    return jpeg;
}

} // namespace plix
