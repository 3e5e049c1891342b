#pragma once

#include <QImage>
#include <QObject>
#include <QTextCharFormat>
#include <QTextLayout>
#include <QTextObjectInterface>
#include <QVector>

class QTextCursor;

namespace kestro {

// Emoji that are shown as pictures. In the document, each is an object character,
// whose format contains the picture and the characters that it stands for.
class EmojiPicture : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    static constexpr int kObjectType = QTextFormat::UserObject + 1;

    using QObject::QObject;

    // `format` is that of the text around it.
    static void Insert(QTextCursor& cursor, const QTextCharFormat& format,
                       const QString& characters, const QImage& picture);

    static bool IsPicture(const QTextFormat& format);
    // The ranges that are pictures.
    static QVector<QTextLayout::FormatRange>
    PicturesIn(const QVector<QTextLayout::FormatRange>& formats);

    // Draws the picture of `format`. `start` is its left end on the baseline.
    static void Draw(QPainter* painter, const QPointF& start, const QTextCharFormat& format);

    // The width that the picture of `format` takes up in a line.
    static qreal Width(const QTextCharFormat& format);

    // Replaces pictures with invisible characters of the same width, because
    // layouts outside of a document do not support objects.
    static void ReplaceWithPlaceholders(QString& text, QVector<QTextLayout::FormatRange>& formats);

    // ----- QTextObjectInterface
    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};

} // namespace kestro
