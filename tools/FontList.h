#pragma once

class QString;

// Fixed fonts where no fontconfig can fix them: an INI file with a section
// "fonts" that names a folder, font files in it, and the families to write
// with, each standing in for what those before it lack.
namespace plix::tool {

// Writes with these fonts, unhinted, from now on. Whether all are there.
bool useFontList(const QString& path);

} // namespace plix::tool
