#include "check/Speller.h"

#include <QLatin1String>
#include <QVector>

#include <algorithm>
#include <array>
#include <cstddef>

namespace plix::tool {
namespace {

// A word of other formats, and a word of cards.
struct Synonym {
    const char* other;
    const char* word;
};

constexpr std::array kSynonyms = std::to_array<Synonym>({
    {"uri", "url"},
    {"url", "uri"},
    {"href", "uri"},
    {"link", "uri"},
    {"open", "uri"},
    {"src", "url"},
    {"row", "horizontal"},
    {"column", "vertical"},
    {"left", "start"},
    {"right", "end"},
    {"flex-start", "start"},
    {"flex-end", "end"},
    {"centre", "center"},
    {"middle", "center"},
    {"tiny", "xs"},
    {"small", "sm"},
    {"medium", "md"},
    {"large", "lg"},
    {"huge", "xxl"},
    {"xsmall", "xs"},
    {"x-small", "xs"},
    {"xlarge", "xl"},
    {"x-large", "xl"},
    {"xxlarge", "xxl"},
    {"xx-large", "xxl"},
    {"contain", "fit"},
    {"fill", "cover"},
    {"strike", "line-through"},
    {"strikethrough", "line-through"},
    {"oblique", "italic"},
    {"normal", "regular"},
    {"regular", "normal"},
    {"semibold", "bold"},
    {"divider", "separator"},
    {"line", "separator"},
    {"picture", "image"},
    {"img", "image"},
    {"label", "text"},
    {"title", "text"},
    {"title", "label"},
    {"text", "label"},
    {"container", "box"},
    {"card", "bubble"},
    {"children", "contents"},
    {"items", "contents"},
    {"elements", "contents"},
    {"background", "backgroundColor"},
    {"textColor", "color"},
    {"fontSize", "size"},
    {"fontWeight", "weight"},
    {"fontStyle", "style"},
    {"textDecoration", "decoration"},
    {"textAlign", "align"},
    {"verticalAlign", "gravity"},
    {"padding", "paddingAll"},
    {"paddingLeft", "paddingStart"},
    {"paddingRight", "paddingEnd"},
    {"offsetLeft", "offsetStart"},
    {"offsetRight", "offsetEnd"},
    {"top", "offsetTop"},
    {"bottom", "offsetBottom"},
    {"borderRadius", "cornerRadius"},
    {"radius", "cornerRadius"},
    {"gap", "spacing"},
    {"grow", "flex"},
    {"flexGrow", "flex"},
    {"ratio", "aspectRatio"},
    {"lines", "maxLines"},
    {"onClick", "action"},
});

// How many letters must be inserted, removed, replaced or swapped with the next one.
int editDistance(const QString& from, const QString& to)
{
    const int width = to.size() + 1;
    QVector<QVector<int>> rows(from.size() + 1, QVector<int>(width));
    for (int j = 0; j < width; ++j)
        rows[0][j] = j;
    for (int i = 1; i <= from.size(); ++i) {
        rows[i][0] = i;
        for (int j = 1; j < width; ++j) {
            const int replaced = rows[i - 1][j - 1] + (from[i - 1] == to[j - 1] ? 0 : 1);
            rows[i][j] = std::min({rows[i - 1][j] + 1, rows[i][j - 1] + 1, replaced});
            const bool isSwapped =
                i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1];
            if (isSwapped)
                rows[i][j] = std::min(rows[i][j], rows[i - 2][j - 2] + 1);
        }
    }
    return rows[from.size()][to.size()];
}

QString synonym(const QString& word, const QStringList& allowed)
{
    for (const Synonym& row : kSynonyms) {
        const QLatin1String meant(row.word);
        if (word.compare(QLatin1String(row.other), Qt::CaseInsensitive) == 0
            && allowed.contains(meant))
            return meant;
    }
    return {};
}

QString closestWord(const QString& word, const QStringList& allowed)
{
    // In short words, one letter more is another word.
    int distance = std::max(1, word.size() / 3) + 1;
    QString closest;
    for (const QString& candidate : allowed) {
        const int candidateDistance = editDistance(word, candidate);
        if (candidateDistance < distance && candidateDistance < candidate.size()) {
            distance = candidateDistance;
            closest = candidate;
        }
    }
    return closest;
}

} // namespace

QString probableWord(const QString& word, const QStringList& allowed)
{
    constexpr int kMaximumLength = 40;
    if (word.isEmpty() || word.size() > kMaximumLength)
        return {};
    for (const QString& candidate : allowed) {
        if (candidate.compare(word.trimmed(), Qt::CaseInsensitive) == 0)
            return candidate;
    }
    const QString known = synonym(word, allowed);
    return known.isEmpty() ? closestWord(word, allowed) : known;
}

} // namespace plix::tool
