#include "ui/text/PlixTextFont.h"

#include "layout/PlixKeywordTable.h"
#include "model/format/PlixWords.h"

namespace plix {

namespace {

constexpr int kDefaultSize = 16;

} // namespace

int ToTextPixels(const std::string& size)
{
    return FindKeyword(kTextSizes, size).value_or(kDefaultSize);
}

void ApplyFontWords(QFont& font, const std::string& weight, const std::string& decoration,
                    const std::string& style)
{
    if (FindKeyword(kTextWeights, weight) == PlixTextWeight::Bold)
        font.setWeight(QFont::Bold);
    const auto line = FindKeyword(kTextDecorations, decoration);
    if (line == PlixTextDecoration::LineThrough)
        font.setStrikeOut(true);
    else if (line == PlixTextDecoration::Underline)
        font.setUnderline(true);
    if (FindKeyword(kTextStyles, style) == PlixTextStyle::Italic)
        font.setStyle(QFont::StyleItalic);
}

} // namespace plix
