#pragma once

#include <QFont>
#include <QString>
#include <QTextLayout>
#include <QTextOption>
#include <QVector>

#include <optional>
#include <vector>

class QPainter;

namespace kestro {

// The text from which an elided line is made, and its formats in the paragraph.
struct ElisionSource {
    QString text;
    QVector<QTextLayout::FormatRange> formats;
    QFont font;
    QTextOption option;
    // About how many characters will fit: the search starts there.
    int expectedLength = 0;
    // Whether it is known that not all of the text fits. Lines of one character
    // that are too wide then need no search; there can be many of them.
    bool isTooWide = false;
};

// A line with the start of a text and an ellipsis: as much of the text as fits
// into a width. Never cuts inside a grapheme, which readers see as one character.
class ElidedLine {
public:
    // Without `width`, all of the text fits.
    ElidedLine(ElisionSource source, std::optional<qreal> width);

    // Its position is (0, 0). It has the given width and is aligned in it.
    QTextLine Line() const;

    // How many characters of the text are shown.
    int Length() const { return laidOutLength_; }

    // Draws the line with its pictures. `format`, if not null, replaces the formats of the
    // text; it is for the whole line.
    void Draw(QPainter* painter, const QPointF& origin,
              const QTextLayout::FormatRange* format) const;

private:
    int LongestFittingLength();
    bool Fits(int length);
    void LayOut(int length);
    void DrawBesidePictures(QPainter* painter, const QPointF& origin,
                            QTextLayout::FormatRange format) const;
    void DrawPictures(QPainter* painter, const QPointF& origin) const;

    const ElisionSource source_;
    const QVector<QTextLayout::FormatRange> pictures_;
    const std::optional<qreal> width_;
    QTextLayout layout_;
    int laidOutLength_ = 0;
};

} // namespace kestro
