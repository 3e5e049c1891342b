#pragma once

#include <QImage>
#include <QObject>
#include <QTextCharFormat>
#include <QTextLayout>
#include <QTextObjectInterface>
#include <QVector>

class QTextCursor;

namespace kestro {

// Emoji that are shown as pictures: one object character each, whose format
// holds the picture and the characters that it stands for.
class EmojiPicture : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)

public:
    static constexpr int kObjectType = QTextFormat::UserObject + 1;

    // Text around it has `format`.
    static void Insert(QTextCursor& cursor, const QTextCharFormat& format,
                       const QString& characters, const QImage& picture);

    static bool IsPicture(const QTextFormat& format);
    static QVector<QTextLayout::FormatRange>
    PicturesIn(const QVector<QTextLayout::FormatRange>& formats);

    // Draws the picture of `format` where the text has its baseline at `start`.
    static void Draw(QPainter* painter, const QPointF& start, const QTextCharFormat& format);

    // How wide a picture of `format` is.
    static qreal Width(const QTextCharFormat& format);

    // Layouts outside of a document know no objects. Puts characters in their
    // place that take as much room and leave no ink.
    static void ReplaceWithPlaceholders(QString& text, QVector<QTextLayout::FormatRange>& formats);

    // ----- QTextObjectInterface
    QSizeF intrinsicSize(QTextDocument* document, int position, const QTextFormat& format) override;
    void drawObject(QPainter* painter, const QRectF& rect, QTextDocument* document, int position,
                    const QTextFormat& format) override;
};

} // namespace kestro
