#pragma once

#include <QRectF>

#include <utility>
#include <vector>

class QPointF;

namespace kestro {

class HighlightWords;
class LaidOutText;
class ShownLines;

// The characters of TextItem::toPlainText(): where they are shown. Counts them from 0.
// Like ShownLines, it must not be used after the text's layout has changed.
class TextCharacters {
public:
    TextCharacters(const LaidOutText& text, const ShownLines& shown);

    // Empty if the character is not shown.
    QRectF RectOf(int index) const;
    // -1 if there is none.
    int IndexAt(const QPointF& point) const;
    // The ranges that occurrences of the words cover, as pairs of start and end.
    std::vector<std::pair<int, int>> RangesOf(const HighlightWords& words) const;

private:
    const LaidOutText& text_;
    const ShownLines& shown_;
};

} // namespace kestro
