#pragma once

#include <QString>

namespace plix {

// Whether `text` carries an element of the inline markup: what QRegExp finds
// with "<[em].*/>|<e.*</e>|<m.*</m>", case-sensitively, but in linear time.
bool HasMarkup(const QString& text);

// `text` with "&", "<" and ">" written as entities. What a sender has escaped
// already is undone first, so that nothing is escaped twice; a text that spells
// an escaped entity on purpose pays for that and is read as the entity.
QString EscapeMarkup(const QString& text);

} // namespace plix
