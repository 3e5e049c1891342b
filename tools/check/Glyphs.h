#pragma once

class QFont;
class QString;

namespace plix::tool {

// The characters of a text that neither the font nor its substitutes have.
QString missingGlyphs(const QString& text, const QFont& font);

} // namespace plix::tool
