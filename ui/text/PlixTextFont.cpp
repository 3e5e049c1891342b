#include "ui/text/PlixTextFont.h"

#include "layout/PlixKeywordTable.h"

namespace plix {

namespace {

constexpr std::array kSizes = std::to_array<PlixKeyword<int>>({{"xxs", 11},
                                                               {"xs", 13},
                                                               {"sm", 14},
                                                               {"md", 16},
                                                               {"lg", 19},
                                                               {"xl", 22},
                                                               {"xxl", 29},
                                                               {"3xl", 35},
                                                               {"4xl", 48},
                                                               {"5xl", 74}});

constexpr int kDefaultSize = 16;

} // namespace

int ToTextPixels(const std::string& size)
{
    return FindKeyword(kSizes, size).value_or(kDefaultSize);
}

void ApplyFontWords(QFont& font, const std::string& weight, const std::string& decoration,
                    const std::string& style)
{
    if (weight == "bold")
        font.setWeight(QFont::Bold);
    if (decoration == "line-through")
        font.setStrikeOut(true);
    else if (decoration == "underline")
        font.setUnderline(true);
    if (style == "italic")
        font.setStyle(QFont::StyleItalic);
}

} // namespace plix
