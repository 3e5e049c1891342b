#include "EmojiPicture.h"

#include "ScaledPictures.h"
#include "TextProperty.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <iterator>

namespace kestro {

namespace {

// In pixels; enough for any text. A picture that is shown larger is scaled by the
// painter, and only its visible part.
constexpr int kMaximumSide = 256;

// For all items together: 32 pictures of the maximum size.
constexpr int kMaximumScaledBytes = 8 * 1024 * 1024;

// The square in which a picture is shown. It is as high as a line of its font.
struct EmojiCell {
    explicit EmojiCell(const QTextFormat& format)
    {
        const QFontMetrics metrics(format.toCharFormat().font());
        side = metrics.height();
        descent = metrics.descent();
    }

    int side;
    int descent;
};

// An em dash. The text's own font has a glyph for it, so the line does not grow.
constexpr QChar kPlaceholder(0x2014);

// A zero width space, which follows every picture. A line that consists of objects
// only would have no descent.
constexpr QChar kStrut(0x200B);

ScaledPictures& SharedScaledPictures()
{
    // Never destroyed, because the application may delete its scene last.
    static auto* const pictures = new ScaledPictures(kMaximumScaledBytes);
    return *pictures;
}

// Lets the document show pictures.
void RegisterHandler(const QTextDocument& document)
{
    QAbstractTextDocumentLayout* const layout = document.documentLayout();
    if (!layout->handlerForObject(EmojiPicture::kObjectType))
        layout->registerHandler(EmojiPicture::kObjectType, new EmojiPicture(layout));
}

QImage LimitedInSize(const QImage& picture)
{
    if (picture.width() <= kMaximumSide && picture.height() <= kMaximumSide)
        return picture;
    return picture.scaled(kMaximumSide, kMaximumSide, Qt::KeepAspectRatio,
                          Qt::SmoothTransformation);
}

QTextCharFormat PlaceholderFormat(QTextCharFormat format)
{
    QFont font = format.font();
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0);
    const qreal ownWidth = QFontMetricsF(font).horizontalAdvance(kPlaceholder);
    font.setLetterSpacing(QFont::AbsoluteSpacing, EmojiCell(format).side - ownWidth);
    format.setFont(font);
    format.setForeground(Qt::transparent);
    format.clearProperty(QTextFormat::ObjectType);
    return format;
}

} // namespace

void EmojiPicture::Insert(QTextCursor& cursor, const QTextCharFormat& format,
                          const QString& characters, const QImage& picture)
{
    RegisterHandler(*cursor.document());
    QTextCharFormat object = format;
    object.setObjectType(kObjectType);
    object.setProperty(TextProperty::EmojiCharacters, characters);
    object.setProperty(TextProperty::EmojiPicture, LimitedInSize(picture));
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), object);

    QTextCharFormat strutFormat = format;
    strutFormat.setProperty(TextProperty::EmojiCharacters, QString());
    cursor.insertText(QString(kStrut), strutFormat);
}

bool EmojiPicture::IsPicture(const QTextFormat& format)
{
    return format.hasProperty(TextProperty::EmojiPicture);
}

QVector<QTextLayout::FormatRange>
EmojiPicture::PicturesIn(const QVector<QTextLayout::FormatRange>& formats)
{
    QVector<QTextLayout::FormatRange> pictures;
    std::copy_if(formats.begin(), formats.end(), std::back_inserter(pictures),
                 [](const auto& range) { return IsPicture(range.format); });
    return pictures;
}

void EmojiPicture::Draw(QPainter* painter, const QPointF& start, const QTextCharFormat& format)
{
    const EmojiCell cell(format);
    const QRectF square(start.x(), start.y() + cell.descent - cell.side, cell.side, cell.side);

    const auto picture = format.property(TextProperty::EmojiPicture).value<QImage>();
    const QSize pixels = painter->deviceTransform().mapRect(square).size().toSize();
    const bool isScaledHere = pixels.width() <= kMaximumSide && pixels.height() <= kMaximumSide;
    const QImage image = isScaledHere ? SharedScaledPictures().Get(picture, pixels) : picture;
    QRectF place(QPointF(), QSizeF(image.size()).scaled(square.size(), Qt::KeepAspectRatio));
    place.moveCenter(square.center());
    const bool wasSmooth = painter->testRenderHint(QPainter::SmoothPixmapTransform);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth || !isScaledHere);
    painter->drawImage(place, image);
    painter->setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
}

qreal EmojiPicture::Width(const QTextCharFormat& format)
{
    return EmojiCell(format).side;
}

void EmojiPicture::ReplaceWithPlaceholders(QString& text,
                                           QVector<QTextLayout::FormatRange>& formats)
{
    for (QTextLayout::FormatRange& range : formats) {
        if (!IsPicture(range.format))
            continue;
        range.format = PlaceholderFormat(range.format);
        text.replace(range.start, range.length, QString(range.length, kPlaceholder));
    }
}

// The text engine puts objects onto the baseline. The picture also covers the
// descent, for which there is always room.
QSizeF EmojiPicture::intrinsicSize(QTextDocument*, int, const QTextFormat& format)
{
    const EmojiCell cell(format);
    return QSizeF(cell.side, cell.side - cell.descent);
}

void EmojiPicture::drawObject(QPainter* painter, const QRectF& rect, QTextDocument*, int,
                              const QTextFormat& format)
{
    Draw(painter, rect.bottomLeft(), format.toCharFormat());
}

} // namespace kestro
