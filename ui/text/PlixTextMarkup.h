#pragma once

#include <QString>

namespace plix {

// Whether `text` contains an element of the inline markup. The same answer as the
// case-sensitive QRegExp "<[em].*/>|<e.*</e>|<m.*</m>", but in linear time.
bool HasMarkup(const QString& text);

// `text` with "&", "<" and ">" as entities. Entities that the sender has written are
// undone first, so that nothing is escaped twice. So a text that means to show an
// entity literally cannot: it is read as the entity.
QString EscapeMarkup(const QString& text);

} // namespace plix
