#include "EmojiPicture.h"

#include "ScaledPictures.h"
#include "TextProperty.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextCursor>

#include <algorithm>
#include <iterator>

namespace {

// Enough for any text. What is shown larger, the painter scales as far as it is
// seen.
constexpr int largestPicture = 256;

// Of all items together: thirty pictures of the largest size.
constexpr int maxScaledBytes = 8 * 1024 * 1024;

// Of the square that a picture is shown in: as high as a line of its font.
struct Room {
    explicit Room(const QTextFormat& format)
    {
        const QFontMetrics metrics(format.toCharFormat().font());
        side = metrics.height();
        descent = metrics.descent();
    }

    int side;
    int descent;
};

// Has a glyph in the text's own font, so that the line does not grow.
constexpr QChar inkless(0x2014);

// Takes no width. A line of nothing but objects would have no descent.
constexpr QChar strut(0x200B);

ScaledPictures& scaledPictures()
{
    // Never destroyed: the application's scene may go last of all.
    static auto* const pictures = new ScaledPictures(maxScaledBytes);
    return *pictures;
}

QImage withinBounds(const QImage& picture)
{
    if (picture.width() <= largestPicture && picture.height() <= largestPicture)
        return picture;
    return picture.scaled(largestPicture, largestPicture, Qt::KeepAspectRatio,
                          Qt::SmoothTransformation);
}

QTextCharFormat inklessFormat(QTextCharFormat format)
{
    QFont font = format.font();
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    const qreal ownWidth = QFontMetricsF(font).horizontalAdvance(inkless);
    font.setLetterSpacing(QFont::AbsoluteSpacing, Room(format).side - ownWidth);
    format.setFont(font);
    format.setForeground(Qt::transparent);
    format.clearProperty(QTextFormat::ObjectType);
    return format;
}

} // namespace

void EmojiPicture::Insert(QTextCursor& cursor, const QTextCharFormat& format,
                          const QString& characters, const QImage& picture)
{
    QTextCharFormat object = format;
    object.setObjectType(objectType);
    object.setProperty(TextProperty::EmojiCharacters, characters);
    object.setProperty(TextProperty::EmojiPicture, withinBounds(picture));
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), object);

    QTextCharFormat strutFormat = format;
    strutFormat.setProperty(TextProperty::EmojiCharacters, QString());
    cursor.insertText(QString(strut), strutFormat);
}

bool EmojiPicture::IsIn(const QTextFormat& format)
{
    return format.hasProperty(TextProperty::EmojiPicture);
}

QVector<QTextLayout::FormatRange>
EmojiPicture::Among(const QVector<QTextLayout::FormatRange>& formats)
{
    QVector<QTextLayout::FormatRange> pictures;
    std::copy_if(formats.begin(), formats.end(), std::back_inserter(pictures),
                 [](const auto& range) { return IsIn(range.format); });
    return pictures;
}

void EmojiPicture::Draw(QPainter* painter, const QPointF& start, const QTextCharFormat& format)
{
    const Room room(format);
    const QRectF square(start.x(), start.y() + room.descent - room.side, room.side, room.side);

    const auto picture = format.property(TextProperty::EmojiPicture).value<QImage>();
    const QSize pixels = painter->deviceTransform().mapRect(square).size().toSize();
    const bool isOrdinary = pixels.width() <= largestPicture && pixels.height() <= largestPicture;
    const QImage image = isOrdinary ? scaledPictures().Get(picture, pixels) : picture;
    QRectF place(QPointF(), QSizeF(image.size()).scaled(square.size(), Qt::KeepAspectRatio));
    place.moveCenter(square.center());
    const bool wasSmooth = painter->testRenderHint(QPainter::SmoothPixmapTransform);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth || !isOrdinary);
    painter->drawImage(place, image);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
}

qreal EmojiPicture::Width(const QTextCharFormat& format)
{
    return Room(format).side;
}

void EmojiPicture::Replace(QString& text, QVector<QTextLayout::FormatRange>& formats)
{
    for (QTextLayout::FormatRange& range : formats) {
        if (!IsIn(range.format))
            continue;
        range.format = inklessFormat(range.format);
        text.replace(range.start, range.length, QString(range.length, inkless));
    }
}

// The text engine stands objects on the baseline. The picture reaches down to
// the descent, where there is room for it in any case.
QSizeF EmojiPicture::intrinsicSize(QTextDocument*, int, const QTextFormat& format)
{
    const Room room(format);
    return QSizeF(room.side, room.side - room.descent);
}

void EmojiPicture::drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int,
                              const QTextFormat& format)
{
    Draw(painter, rect.bottomLeft(), format.toCharFormat());
}
