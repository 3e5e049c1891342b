#pragma once

#include <QByteArray>

namespace plix {

// A PNG file without the chunks that its pixels do not need. Texts and colour profiles
// can unpack to a thousand times their size, and there may be any number of them.
QByteArray StripPngMetadata(const QByteArray& bytes);

} // namespace plix
