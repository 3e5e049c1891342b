#pragma once

#include <QByteArray>

namespace plix {

// A PNG file without what is not needed for its pixels. Texts and colour
// profiles can swell by the thousand times, and there may be any number of them.
QByteArray PngPixelsOnly(const QByteArray& bytes);

} // namespace plix
