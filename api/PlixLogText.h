#pragma once

#include <QString>

namespace plix {

// Prepares text from a card or from a host's exception for a line of the log. Line
// ends and invisible characters are written as "\n" or "\u2028". A text of more
// than `maxLength` UTF-16 units is cut there, and "..." replaces the rest.
QString ToLogText(const QString& text, int maxLength);

} // namespace plix
