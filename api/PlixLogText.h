#pragma once

#include <QString>

namespace plix {

// A text that others have written - a card's author, a host's exception - as it
// may stand in a line of the log: line ends and all that cannot be seen are
// written as "\n" or "\u2028", and after `longest` UTF-16 units "..." takes the
// place of the rest.
QString ToLogText(const QString& text, int longest);

} // namespace plix
