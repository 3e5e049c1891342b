#include "ui/PlixAlignmentWords.h"

#include "layout/PlixKeywordTable.h"

namespace plix {

namespace {

constexpr std::array kAligns =
    std::to_array<PlixKeyword<PlixAlignment>>({{"start", {Qt::AlignLeft, 0}},
                                               {"center", {Qt::AlignHCenter, 0.5}},
                                               {"end", {Qt::AlignRight, 1}}});

constexpr std::array kGravities =
    std::to_array<PlixKeyword<PlixAlignment>>({{"top", {Qt::AlignTop, 0}},
                                               {"center", {Qt::AlignVCenter, 0.5}},
                                               {"bottom", {Qt::AlignBottom, 1}}});

} // namespace

std::optional<PlixAlignment> FindAlign(const std::string& word)
{
    return FindKeyword(kAligns, word);
}

std::optional<PlixAlignment> FindGravity(const std::string& word)
{
    return FindKeyword(kGravities, word);
}

} // namespace plix
