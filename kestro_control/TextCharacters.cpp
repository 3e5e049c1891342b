#include "TextCharacters.h"

#include "HighlightWords.h"
#include "LaidOutText.h"
#include "ParagraphText.h"
#include "ShownLines.h"

#include <algorithm>
#include <optional>

namespace kestro {

namespace {

// A paragraph, and the index of its first character in the whole text.
struct Numbered {
    ParagraphText text;
    int first;

    int Size() const { return text.Characters().size(); }
};

// Calls `visit` for the paragraphs until it returns true.
template <typename Visit> void FindParagraph(const LaidOutText& text, const Visit& visit)
{
    int first = 0;
    const int count = text.ParagraphCount();
    for (int i = 0; i < count; ++i) {
        const LaidOutParagraph laidOut = text.Paragraph(i);
        const Numbered paragraph {ParagraphText(laidOut.text, laidOut.formats, laidOut.position),
                                  first};
        if (visit(paragraph))
            return;
        first += paragraph.Size() + 1; // the end of the paragraph
    }
}

} // namespace

TextCharacters::TextCharacters(const LaidOutText& text, const ShownLines& shown)
    : text_(text)
    , shown_(shown)
{
}

QRectF TextCharacters::RectOf(int index) const
{
    QRectF rect;
    FindParagraph(text_, [&](const Numbered& paragraph) {
        const int inside = index - paragraph.first;
        if (inside >= paragraph.Size())
            return false;
        if (inside >= 0) {
            const int start = paragraph.text.Position(inside);
            const int end = std::max(paragraph.text.Position(inside + 1), start + 1);
            for (const QRectF& part : shown_.GlyphRects({start, end}))
                rect |= part;
        }
        return true;
    });
    return rect;
}

int TextCharacters::IndexAt(const QPointF& point) const
{
    const std::optional<int> position = shown_.PositionAt(point);
    if (!position)
        return -1;
    int index = -1;
    FindParagraph(text_, [&](const Numbered& paragraph) {
        if (*position >= paragraph.text.Position(paragraph.Size()))
            return false;
        index = paragraph.first + paragraph.text.Index(*position);
        return true;
    });
    return index;
}

std::vector<std::pair<int, int>> TextCharacters::RangesOf(const HighlightWords& words) const
{
    std::vector<std::pair<int, int>> ranges;
    FindParagraph(text_, [&](const Numbered& paragraph) {
        for (const auto& [start, end] : words.CoveredRanges(paragraph.text.Characters()))
            ranges.emplace_back(paragraph.first + start, paragraph.first + end);
        return false;
    });
    return ranges;
}

} // namespace kestro
