#include "TextUnits.h"

#include "Graphemes.h"
#include "LaidOutText.h"
#include "ParagraphText.h"

#include <QTextBoundaryFinder>
#include <QTextOption>

#include <algorithm>
#include <vector>

namespace kestro {

namespace {

// Positions in ascending order, from the start of a paragraph to its end.
using Positions = std::vector<int>;

// `reasons`: of the boundaries that count. Some that Qt finds are inside of graphemes.
std::vector<int> WordBoundaries(const QString& text, QTextBoundaryFinder::BoundaryReasons reasons)
{
    std::vector<int> boundaries;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Word, text);
    for (const int at : GraphemeBoundaries(text)) {
        finder.setPosition(at);
        if ((finder.boundaryReasons() & reasons) || at == 0 || at == text.size())
            boundaries.push_back(at);
    }
    return boundaries;
}

// An emoji picture is at one position, but stands for several characters.
Positions ToPositions(std::vector<int> boundaries, const ParagraphText& text)
{
    for (int& boundary : boundaries)
        boundary = text.Position(boundary);
    boundaries.erase(std::unique(boundaries.begin(), boundaries.end()), boundaries.end());
    return boundaries;
}

Positions CharactersIn(const LaidOutParagraph& paragraph)
{
    const ParagraphText text(paragraph);
    return ToPositions(GraphemeBoundaries(text.Characters()), text);
}

// Words, and what is between them.
Positions WordsIn(const LaidOutParagraph& paragraph)
{
    const ParagraphText text(paragraph);
    const auto all = ~QTextBoundaryFinder::BoundaryReasons();
    return ToPositions(WordBoundaries(text.Characters(), all), text);
}

// Where a caret stops when it moves by `unit`.
Positions StopsIn(const LaidOutParagraph& paragraph, TextUnit unit)
{
    if (unit == TextUnit::Character)
        return CharactersIn(paragraph);
    const ParagraphText text(paragraph);
    return ToPositions(WordBoundaries(text.Characters(), QTextBoundaryFinder::StartOfItem), text);
}

// The part between two of `positions` that contains the character at `position`, or else
// the last one.
TextRange PartAt(int position, const Positions& positions)
{
    if (positions.size() < 2)
        return {positions.front(), positions.front()};
    const auto end = std::min(std::upper_bound(positions.begin() + 1, positions.end(), position),
                              positions.end() - 1);
    return {*(end - 1), *end};
}

TextRange RangeOf(const LaidOutParagraph& paragraph)
{
    return {paragraph.position, paragraph.position + paragraph.text.size()};
}

} // namespace

TextUnits::TextUnits(const LaidOutText& text)
    : text_(text)
{
}

int TextUnits::Nearest(int position) const
{
    const TextRange character = At(position, TextUnit::Character);
    const bool isEnd = position - character.start > character.end - position;
    return isEnd ? character.end : character.start;
}

TextRange TextUnits::At(int position, TextUnit unit) const
{
    const LaidOutParagraph paragraph = text_.ParagraphAt(position);
    switch (unit) {
    case TextUnit::Character:
        return PartAt(position, CharactersIn(paragraph));
    case TextUnit::Word:
        return PartAt(position, WordsIn(paragraph));
    case TextUnit::Paragraph:
        break;
    }
    return RangeOf(paragraph);
}

TextRange TextUnits::Around(const TextRange& range) const
{
    if (range.IsEmpty())
        return range;
    const TextRange first = At(range.start, TextUnit::Character);
    const TextRange last = At(range.end - 1, TextUnit::Character);
    // The end of a paragraph is in no character.
    const int start = first.end > range.start ? first.start : range.start;
    return {start, std::max(range.end, last.end)};
}

int TextUnits::Next(int position, TextUnit unit) const
{
    const LaidOutParagraph paragraph = text_.ParagraphAt(position);
    const Positions stops = StopsIn(paragraph, unit);
    const auto next = std::upper_bound(stops.begin(), stops.end(), position);
    if (next != stops.end())
        return *next;
    return paragraph.isLast ? stops.back() : stops.back() + 1;
}

int TextUnits::Previous(int position, TextUnit unit) const
{
    const LaidOutParagraph paragraph = text_.ParagraphAt(position);
    const Positions stops = StopsIn(paragraph, unit);
    const auto next = std::lower_bound(stops.begin(), stops.end(), position);
    if (next != stops.begin())
        return *(next - 1);
    return std::max(0, stops.front() - 1);
}

bool TextUnits::IsRightToLeft(int position) const
{
    const QTextLayout& layout = *text_.ParagraphAt(position).layout;
    return layout.textOption().textDirection() == Qt::RightToLeft;
}

} // namespace kestro
