#pragma once

class QString;

// The same fonts on every machine, for systems without fontconfig. They come from
// an INI file. Its section "fonts" has the keys "folder", "files" (font files in
// that folder) and "families". A family is used for the characters that the
// families before it lack.
namespace plix::tool {

// Makes these fonts, unhinted, the application's font. Returns false if one is
// missing.
bool useFontList(const QString& path);

} // namespace plix::tool
