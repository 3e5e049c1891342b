#pragma once

#include <QFont>
#include <QPointF>
#include <QString>
#include <QTextLayout>
#include <QVector>

namespace kestro {

// A paragraph of a text that is laid out.
struct LaidOutParagraph {
    QString text;
    // In ascending order, without overlaps.
    QVector<QTextLayout::FormatRange> formats;
    // Where its first character is in the whole text. Every paragraph is followed by
    // a character that ends it.
    int position = 0;
    bool isLast = false;
    // Has the lines. Valid until the text or its layout changes.
    QTextLayout* layout = nullptr;
    // The origin of the layout's coordinates, in those of the text.
    QPointF origin;
    // The right end of its lines, in coordinates of the text. Without meaning if the
    // text has no width.
    qreal right = 0;
};

// A text that is laid out, whoever has done that.
class LaidOutText {
public:
    LaidOutText() = default;
    LaidOutText(const LaidOutText&) = delete;
    LaidOutText& operator=(const LaidOutText&) = delete;
    virtual ~LaidOutText() = default;

    virtual bool IsEmpty() const = 0;

    // Negative: its lines break at separators only and are not aligned.
    virtual qreal Width() const = 0;

    // That of text without a format.
    virtual QFont Font() const = 0;

    virtual int ParagraphCount() const = 0;
    virtual LaidOutParagraph Paragraph(int index) const = 0;

    // The paragraph that a position belongs to. There must be one.
    LaidOutParagraph ParagraphAt(int position) const;

    // There must be one at this position.
    QChar CharacterAt(int position) const;

    // The position at which the text ends.
    int End() const;
};

} // namespace kestro
