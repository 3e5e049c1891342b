#include "ui/image/PlixPngMetadata.h"

#include <QList>
#include <QtEndian>

#include <algorithm>

namespace plix {

QByteArray StripPngMetadata(const QByteArray& bytes)
{
    constexpr int kSignature = 8;
    constexpr int kHead = 8; // length and type
    constexpr int kChecksum = 4;
    // One chunk of each of these is kept.
    QList<QByteArray> wanted {"IHDR", "PLTE", "tRNS", "IEND"};
    QByteArray kept = bytes.left(kSignature);
    int at = kSignature;
    while (at + kHead <= bytes.size()) {
        const auto length = qFromBigEndian<quint32>(bytes.constData() + at);
        const QByteArray type = bytes.mid(at + 4, 4);
        const auto end = static_cast<int>(
            std::min<qint64>(qint64 {at} + kHead + length + kChecksum, bytes.size()));
        if (type == "IDAT" || wanted.removeOne(type))
            kept.append(bytes.constData() + at, end - at);
        at = end;
    }
    return kept;
}

} // namespace plix
