#include "SelectionKeys.h"

#include "TextHitTest.h"

#include <QKeyEvent>
#include <QKeySequence>

#include <algorithm>
#include <iterator>

namespace kestro {

namespace {

using Move = SelectionCaret (*)(const TextHitTest& text, const SelectionCaret& caret);

// "Next" is on the right: in a paragraph that reads from right to left, it goes back.
template <TextUnit unit, bool isRight>
SelectionCaret Sideways(const TextHitTest& text, const SelectionCaret& caret)
{
    const bool isForward = isRight != text.Units().IsRightToLeft(caret.position);
    return {isForward ? text.Next(caret.position, unit) : text.Previous(caret.position, unit), {}};
}

template <int (TextHitTest::*inLine)(int, qreal) const>
SelectionCaret UpOrDown(const TextHitTest& text, const SelectionCaret& caret)
{
    const qreal x = caret.x.value_or(text.XOf(caret.position));
    return {(text.*inLine)(caret.position, x), x};
}

template <int (TextHitTest::*place)(int) const>
SelectionCaret InLine(const TextHitTest& text, const SelectionCaret& caret)
{
    return {(text.*place)(caret.position), {}};
}

SelectionCaret ToParagraphStart(const TextHitTest& text, const SelectionCaret& caret)
{
    return {text.Units().At(caret.position, TextUnit::Paragraph).start, {}};
}

SelectionCaret ToParagraphEnd(const TextHitTest& text, const SelectionCaret& caret)
{
    return {text.Units().At(caret.position, TextUnit::Paragraph).end, {}};
}

SelectionCaret ToStart(const TextHitTest&, const SelectionCaret&)
{
    return {};
}

SelectionCaret ToEnd(const TextHitTest& text, const SelectionCaret&)
{
    return {text.End(), {}};
}

struct KeyMove {
    QKeySequence::StandardKey key;
    Move move;
};

constexpr KeyMove kMoves[] = {
    {QKeySequence::SelectNextChar, &Sideways<TextUnit::Character, true>},
    {QKeySequence::SelectPreviousChar, &Sideways<TextUnit::Character, false>},
    {QKeySequence::SelectNextWord, &Sideways<TextUnit::Word, true>},
    {QKeySequence::SelectPreviousWord, &Sideways<TextUnit::Word, false>},
    {QKeySequence::SelectNextLine, &UpOrDown<&TextHitTest::InLineBelow>},
    {QKeySequence::SelectPreviousLine, &UpOrDown<&TextHitTest::InLineAbove>},
    {QKeySequence::SelectStartOfLine, &InLine<&TextHitTest::LineStart>},
    {QKeySequence::SelectEndOfLine, &InLine<&TextHitTest::LineEnd>},
    {QKeySequence::SelectStartOfBlock, &ToParagraphStart},
    {QKeySequence::SelectEndOfBlock, &ToParagraphEnd},
    {QKeySequence::SelectStartOfDocument, &ToStart},
    {QKeySequence::SelectEndOfDocument, &ToEnd},
};

const KeyMove* Find(const QKeyEvent& key)
{
    const auto* const found =
        std::find_if(std::begin(kMoves), std::end(kMoves),
                     [&key](const KeyMove& row) { return key.matches(row.key); });
    return found == std::end(kMoves) ? nullptr : found;
}

} // namespace

std::optional<SelectionCaret> MovedByKey(const QKeyEvent& key, const TextHitTest& text,
                                         const SelectionCaret& caret)
{
    const KeyMove* const row = Find(key);
    return row ? std::optional(row->move(text, caret)) : std::nullopt;
}

bool IsSelectionKey(const QKeyEvent& key)
{
    return Find(key) != nullptr;
}

} // namespace kestro
