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

// Text that is to become one line, with the formats it has in its paragraph.
struct ElisionSource {
    QString text;
    QVector<QTextLayout::FormatRange> formats;
    QFont font;
    QTextOption option;
    // About how much of the text will fit: where the search for it starts.
    int expectedLength = 0;
    // Whether all of the text is known not to fit. Lines of single characters
    // that are too wide, of which there can be many, need no search then.
    bool isTooWide = false;
};

// As much of the start of a text as fits a width together with the ellipsis
// that ends it. Cut between characters as readers know them, never inside one.
class ElidedLine {
public:
    // Without `width` all of the text fits.
    ElidedLine(ElisionSource source, std::optional<qreal> width);

    // At (0, 0), as wide as the width and aligned in it.
    QTextLine Line() const;

    // How much of the text is left.
    int Length() const { return laidOutLength_; }

    // Draws what the layout cannot: pictures in the text.
    void DrawPictures(QPainter* painter, const QPointF& origin) const;

private:
    int LongestFittingLength();
    bool Fits(int length);
    void LayOut(int length);

    const ElisionSource source_;
    const QVector<QTextLayout::FormatRange> pictures_;
    const std::optional<qreal> width_;
    QTextLayout layout_;
    int laidOutLength_ = 0;
};

} // namespace kestro
