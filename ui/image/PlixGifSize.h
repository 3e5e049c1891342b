#pragma once

#include <QByteArray>
#include <QSize>

namespace plix {

// The pixels that a GIF file's frames fill. Empty when it has no frame, or one
// that unpacks to far more pixels than there are: the decoder would go through
// all of them.
QSize ReadGifSize(const QByteArray& bytes);

} // namespace plix
