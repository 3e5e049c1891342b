#pragma once

#include <QByteArray>
#include <QSize>

namespace plix {

// The format of a file by its first bytes, as QImageReader names it: PNG, JPEG, GIF,
// WebP or BMP. Empty for every other format, even if Qt has a plugin for it: those
// plugins are not made for untrusted pictures.
QByteArray PictureFormat(const QByteArray& bytes);

// The size of the decoded picture, in pixels. Empty if it cannot be determined.
QSize PictureSize(const QByteArray& bytes, const QByteArray& format);

} // namespace plix
