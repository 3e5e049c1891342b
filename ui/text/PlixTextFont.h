#pragma once

#include <QFont>

#include <string>

namespace plix {

// The size in pixels for a "size" of a text, span, button or icon: "xxs" 11 ...
// "5xl" 74, 16 for any other word and for none.
int ToTextPixels(const std::string& size);

// Sets the properties below. Any other word changes nothing.
//   weight      "bold"
//   decoration  "line-through" or "underline"
//   style       "italic"
void ApplyFontWords(QFont& font, const std::string& weight, const std::string& decoration,
                    const std::string& style);

} // namespace plix
