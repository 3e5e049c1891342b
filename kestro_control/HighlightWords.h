#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace kestro {

// Words to search for in texts, in upper or lower case.
class HighlightWords {
public:
    HighlightWords() = default;
    // Ignores the words beyond limits::kHighlightWords.
    explicit HighlightWords(const QStringList& words);

    bool IsEmpty() const { return words_.empty(); }

    // The ranges of `text` that occurrences of the words cover, as pairs of start
    // and end. They are in ascending order and neither overlap nor touch. The time
    // is proportional to the length of the text for every word.
    std::vector<std::pair<int, int>> CoveredRanges(const QString& text) const;

    friend bool operator==(const HighlightWords&, const HighlightWords&) = default;

private:
    std::vector<QString> words_;
};

} // namespace kestro
