#include "HighlightWords.h"

#include "TextLimits.h"

#include <algorithm>

namespace kestro {

namespace {

// Folds each character by itself, as QString does in comparisons without case, so
// that positions stay the same.
QString CaseFolded(const QString& text)
{
    QString folded = text;
    for (int at = 0; at < folded.size(); ++at) {
        if (at + 1 < folded.size() && folded.at(at).isHighSurrogate()
            && folded.at(at + 1).isLowSurrogate()) {
            const uint character =
                QChar::toCaseFolded(QChar::surrogateToUcs4(folded.at(at), folded.at(at + 1)));
            folded[at] = QChar::highSurrogate(character);
            folded[++at] = QChar::lowSurrogate(character);
        } else {
            folded[at] = folded.at(at).toCaseFolded();
        }
    }
    return folded;
}

// The table of the Knuth-Morris-Pratt search. For every prefix of the word, it has
// the length of the longest shorter prefix that the prefix ends with. The search
// continues there when the next character does not match.
std::vector<int> FallbackLengths(const QString& word)
{
    std::vector<int> fallbacks(static_cast<std::size_t>(word.size()) + 1, 0);
    int matched = 0;
    for (int at = 1; at < word.size(); ++at) {
        while (matched > 0 && word.at(at) != word.at(matched))
            matched = fallbacks[static_cast<std::size_t>(matched)];
        if (word.at(at) == word.at(matched))
            ++matched;
        fallbacks[static_cast<std::size_t>(at) + 1] = matched;
    }
    return fallbacks;
}

void CoverWord(const QString& word, const QString& text, std::vector<bool>& covered)
{
    const std::vector<int> fallbacks = FallbackLengths(word);
    int matched = 0;
    int coveredEnd = 0;
    for (int at = 0; at < text.size(); ++at) {
        while (matched > 0 && (matched == word.size() || text.at(at) != word.at(matched)))
            matched = fallbacks[static_cast<std::size_t>(matched)];
        if (text.at(at) == word.at(matched))
            ++matched;
        if (matched < word.size())
            continue;
        for (int i = std::max(coveredEnd, at + 1 - matched); i <= at; ++i)
            covered[static_cast<std::size_t>(i)] = true;
        coveredEnd = at + 1;
    }
}

} // namespace

HighlightWords::HighlightWords(const QStringList& words)
{
    for (const QString& word : words) {
        if (!word.isEmpty())
            words_.push_back(CaseFolded(word));
        if (words_.size() == limits::kHighlightWords)
            break;
    }
    std::sort(words_.begin(), words_.end());
    words_.erase(std::unique(words_.begin(), words_.end()), words_.end());
}

std::vector<std::pair<int, int>> HighlightWords::CoveredRanges(const QString& text) const
{
    std::vector<bool> covered(static_cast<std::size_t>(text.size()), false);
    const QString folded = CaseFolded(text);
    for (const QString& word : words_) {
        if (word.size() <= folded.size())
            CoverWord(word, folded, covered);
    }

    std::vector<std::pair<int, int>> ranges;
    auto start = std::find(covered.begin(), covered.end(), true);
    while (start != covered.end()) {
        const auto end = std::find(start, covered.end(), false);
        ranges.emplace_back(start - covered.begin(), end - covered.begin());
        start = std::find(end, covered.end(), true);
    }
    return ranges;
}

} // namespace kestro
