#pragma once

#include <QByteArray>
#include <QSize>

namespace plix {

// Which of PNG, JPEG, GIF, WebP and BMP a file is by its first bytes, as
// QImageReader names it. Empty for everything else, whatever Qt's plugins can
// do: they were not written to be handed the pictures of strangers.
QByteArray PictureFormat(const QByteArray& bytes);

// What decoding such a file fills, in pixels. Empty when that cannot be told.
QSize PictureSize(const QByteArray& bytes, const QByteArray& format);

} // namespace plix
