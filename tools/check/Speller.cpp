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
    QLatin1String other;
    QLatin1String word;
};

constexpr std::array kSynonyms = std::to_array<Synonym>({
    {QLatin1String("uri"), QLatin1String("url")},
    {QLatin1String("url"), QLatin1String("uri")},
    {QLatin1String("href"), QLatin1String("uri")},
    {QLatin1String("link"), QLatin1String("uri")},
    {QLatin1String("open"), QLatin1String("uri")},
    {QLatin1String("src"), QLatin1String("url")},
    {QLatin1String("row"), QLatin1String("horizontal")},
    {QLatin1String("column"), QLatin1String("vertical")},
    {QLatin1String("left"), QLatin1String("start")},
    {QLatin1String("right"), QLatin1String("end")},
    {QLatin1String("flex-start"), QLatin1String("start")},
    {QLatin1String("flex-end"), QLatin1String("end")},
    {QLatin1String("centre"), QLatin1String("center")},
    {QLatin1String("middle"), QLatin1String("center")},
    {QLatin1String("tiny"), QLatin1String("xs")},
    {QLatin1String("small"), QLatin1String("sm")},
    {QLatin1String("medium"), QLatin1String("md")},
    {QLatin1String("large"), QLatin1String("lg")},
    {QLatin1String("huge"), QLatin1String("xxl")},
    {QLatin1String("contain"), QLatin1String("fit")},
    {QLatin1String("fill"), QLatin1String("cover")},
    {QLatin1String("strike"), QLatin1String("line-through")},
    {QLatin1String("strikethrough"), QLatin1String("line-through")},
    {QLatin1String("oblique"), QLatin1String("italic")},
    {QLatin1String("normal"), QLatin1String("regular")},
    {QLatin1String("regular"), QLatin1String("normal")},
    {QLatin1String("semibold"), QLatin1String("bold")},
    {QLatin1String("divider"), QLatin1String("separator")},
    {QLatin1String("line"), QLatin1String("separator")},
    {QLatin1String("picture"), QLatin1String("image")},
    {QLatin1String("img"), QLatin1String("image")},
    {QLatin1String("label"), QLatin1String("text")},
    {QLatin1String("title"), QLatin1String("text")},
    {QLatin1String("title"), QLatin1String("label")},
    {QLatin1String("text"), QLatin1String("label")},
    {QLatin1String("container"), QLatin1String("box")},
    {QLatin1String("card"), QLatin1String("bubble")},
    {QLatin1String("children"), QLatin1String("contents")},
    {QLatin1String("items"), QLatin1String("contents")},
    {QLatin1String("elements"), QLatin1String("contents")},
    {QLatin1String("background"), QLatin1String("backgroundColor")},
    {QLatin1String("textColor"), QLatin1String("color")},
    {QLatin1String("fontSize"), QLatin1String("size")},
    {QLatin1String("fontWeight"), QLatin1String("weight")},
    {QLatin1String("fontStyle"), QLatin1String("style")},
    {QLatin1String("textDecoration"), QLatin1String("decoration")},
    {QLatin1String("textAlign"), QLatin1String("align")},
    {QLatin1String("verticalAlign"), QLatin1String("gravity")},
    {QLatin1String("padding"), QLatin1String("paddingAll")},
    {QLatin1String("paddingLeft"), QLatin1String("paddingStart")},
    {QLatin1String("paddingRight"), QLatin1String("paddingEnd")},
    {QLatin1String("offsetLeft"), QLatin1String("offsetStart")},
    {QLatin1String("offsetRight"), QLatin1String("offsetEnd")},
    {QLatin1String("top"), QLatin1String("offsetTop")},
    {QLatin1String("bottom"), QLatin1String("offsetBottom")},
    {QLatin1String("borderRadius"), QLatin1String("cornerRadius")},
    {QLatin1String("radius"), QLatin1String("cornerRadius")},
    {QLatin1String("gap"), QLatin1String("spacing")},
    {QLatin1String("grow"), QLatin1String("flex")},
    {QLatin1String("flexGrow"), QLatin1String("flex")},
    {QLatin1String("ratio"), QLatin1String("aspectRatio")},
    {QLatin1String("lines"), QLatin1String("maxLines")},
    {QLatin1String("onClick"), QLatin1String("action")},
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
        if (word.compare(row.other, Qt::CaseInsensitive) == 0 && allowed.contains(row.word))
            return row.word;
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
