#pragma once

#include <QFont>

#include <string>

namespace plix {

// The size table that texts, spans and icons share: "xxs" 11 ... "5xl" 74
// pixels, 16 for no word and for any other.
int ToTextPixels(const std::string& size);

// Sets what the words say; a word that says nothing changes nothing.
//   weight      "bold"
//   decoration  "line-through" or "underline"
//   style       "italic"
void ApplyFontWords(QFont& font, const std::string& weight, const std::string& decoration,
                    const std::string& style);

} // namespace plix
