#include "check/SplitWord.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace plix::tool {
namespace {

constexpr int kShortWord = 12;
constexpr int kFewLetters = 2;

bool isHardToRead(const SplitWord& word)
{
    return isShortWord(word.text()) || word.parts.constLast().size() <= kFewLetters;
}

// What is between two places where a line can break, without the blank at its end.
SplitWord splitAt(const QVector<int>& lineStarts, const QString& text, int begin, int end)
{
    while (end > begin && text.at(end - 1).isSpace())
        --end;
    SplitWord word;
    for (const int start : lineStarts) {
        if (start <= begin || start >= end)
            continue;
        word.parts.append(text.mid(begin, start - begin));
        begin = start;
    }
    word.parts.append(text.mid(begin, end - begin));
    return word;
}

} // namespace

std::optional<SplitWord> findSplitWord(const QString& text, const QVector<int>& lineStarts)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    for (const int start : lineStarts) {
        finder.setPosition(start);
        if (start >= text.size() || finder.isAtBoundary())
            continue;
        const int begin = std::max(finder.toPreviousBoundary(), 0);
        const int end = finder.toNextBoundary();
        SplitWord word = splitAt(lineStarts, text, begin, end < 0 ? text.size() : end);
        if (word.parts.size() > 1 && isHardToRead(word))
            return word;
    }
    return std::nullopt;
}

bool canBreak(const QString& text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    const int first = finder.toNextBoundary();
    return first > 0 && first < text.size();
}

bool isShortWord(const QString& word)
{
    return word.size() <= kShortWord;
}

} // namespace plix::tool
