#pragma once

class QString;

namespace plix::tool {

// A plain text for a tooltip. Texts that quote a card may look like HTML, which a tooltip
// would show as such.
QString toolTipOf(const QString& text);

} // namespace plix::tool
