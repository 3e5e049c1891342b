#include "DecodedPictures.h"

#include <QImageReader>

namespace bench {
namespace {

QRect middleOf(const QSize& all, const QSize& shape)
{
    QRect part(QPoint(), shape.scaled(all, Qt::KeepAspectRatio));
    part.moveCenter(QRect(QPoint(), all).center());
    return part;
}

} // namespace

const QImage& DecodedPictures::scaled(const QString& file, const QSize& size)
{
    const QString key = QStringLiteral("%1 %2 %3").arg(size.width()).arg(size.height()).arg(file);
    QImage& picture = scaled_[key];
    if (!picture.isNull())
        return picture;
    QImage& decoded = decoded_[file];
    if (decoded.isNull())
        decoded = QImageReader(file).read();
    picture = decoded.copy(middleOf(decoded.size(), size))
                  .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                  .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return picture;
}

} // namespace bench
