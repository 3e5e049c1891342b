#include "TextCharacters.h"

#include "HighlightWords.h"
#include "LaidOutText.h"
#include "ParagraphText.h"
#include "ShownLines.h"

#include <algorithm>

namespace kestro {

namespace {

// Calls `visit` with the paragraphs, and the index of the first character of each, until it
// returns true.
template <typename Visit> void FindParagraph(const LaidOutText& text, const Visit& visit)
{
    int first = 0;
    const int count = text.ParagraphCount();
    for (int i = 0; i < count; ++i) {
        const ParagraphText paragraph(text.Paragraph(i));
        if (visit(paragraph, first))
            return;
        first += paragraph.Characters().size() + 1; // the end of the paragraph
    }
}

} // namespace

TextCharacters::TextCharacters(const LaidOutText& text)
    : text_(text)
{
}

int TextCharacters::IndexOf(int position) const
{
    int index = 0;
    FindParagraph(text_, [&](const ParagraphText& paragraph, int first) {
        index = first + paragraph.Index(position);
        return position <= paragraph.Position(paragraph.Characters().size());
    });
    return index;
}

int TextCharacters::PositionOf(int index) const
{
    int position = text_.End();
    FindParagraph(text_, [&](const ParagraphText& paragraph, int first) {
        const int inside = std::max(index, 0) - first;
        const bool isHere = inside <= paragraph.Characters().size();
        if (isHere)
            position = paragraph.Position(inside);
        return isHere;
    });
    return position;
}

TextRange TextCharacters::PositionsOf(const CharacterRange& range) const
{
    if (range.start >= range.end)
        return {};
    // The characters that a picture stands for are at one position.
    const int behindLast = std::min(PositionOf(range.end - 1) + 1, text_.End());
    return {PositionOf(range.start), std::max(PositionOf(range.end), behindLast)};
}

QVector<int> TextCharacters::LineStarts(const ShownLines& shown) const
{
    QVector<int> starts;
    auto line = shown.Lines().begin();
    const auto end = shown.Lines().end();
    FindParagraph(text_, [&](const ParagraphText& paragraph, int first) {
        const int last = paragraph.Position(paragraph.Characters().size());
        for (; line != end && line->Start() <= last; ++line)
            starts.append(first + paragraph.Index(line->Start()));
        return line == end;
    });
    return starts;
}

std::vector<CharacterRange> TextCharacters::RangesOf(const HighlightWords& words) const
{
    std::vector<CharacterRange> ranges;
    FindParagraph(text_, [&](const ParagraphText& paragraph, int first) {
        for (const auto& [start, end] : words.CoveredRanges(paragraph.Characters()))
            ranges.push_back({first + start, first + end});
        return false;
    });
    return ranges;
}

} // namespace kestro
