#pragma once

#include <QString>
#include <QStringList>

namespace plix::tool {

// The word among `allowed` that the author of a card probably meant by `word`; empty if
// none is close.
QString probableWord(const QString& word, const QStringList& allowed);

} // namespace plix::tool
