#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace kestro {

// Words that are looked for in any text, whatever their case.
class HighlightWords {
public:
    // More words than anyone looks for; what is beyond them is left out.
    static constexpr std::size_t kMaximumWords = 1000;

    HighlightWords() = default;
    explicit HighlightWords(const QStringList& words);

    bool IsEmpty() const { return words_.empty(); }

    // The stretches of `text`, as pairs of start and end, that occurrences of
    // the words cover, in ascending order, with room between them. Takes time
    // that grows with the length of the text for every word.
    std::vector<std::pair<int, int>> CoveredRanges(const QString& text) const;

    friend bool operator==(const HighlightWords&, const HighlightWords&) = default;

private:
    std::vector<QString> words_;
};

} // namespace kestro
