#pragma once

#include <QByteArray>
#include <QSize>

namespace plix {

// The size of a GIF file's picture, in pixels. Empty if the file has no frame, or a
// frame that unpacks to far more pixels than that: the decoder would unpack all of
// them.
QSize ReadGifSize(const QByteArray& bytes);

} // namespace plix
