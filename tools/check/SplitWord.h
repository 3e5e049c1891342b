#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace plix::tool {

// A word that does not fit into a line, so it is broken inside.
struct SplitWord {
    QStringList parts; // one for each line
    QString text() const { return parts.join(QString()); }
};

// The first word of a text that is hard to read because it is split: a short word, or
// one of which only a letter or two are left over. `lineStarts` counts characters.
std::optional<SplitWord> findSplitWord(const QString& text, const QVector<int>& lineStarts);

// Whether a line can break inside of the text: at a blank, a hyphen, a slash, ...
bool canBreak(const QString& text);

// Longer words are hardly ever written for one line.
bool isShortWord(const QString& word);

} // namespace plix::tool
