#pragma once

#include <QByteArray>
#include <QSize>

#include <optional>

// What the first bytes of a picture say about it.
struct PlixPictureHeader {
    QByteArray format; // as QImageReader names it
    QSize size; // what decoding it would fill, in pixels
};

// Nothing for what is not a PNG, JPEG, GIF, WebP or BMP picture. No other format
// is tried, whatever Qt's plugins can do: they were not written to be handed
// the pictures of strangers.
std::optional<PlixPictureHeader> ReadPictureHeader(const QByteArray& bytes);
