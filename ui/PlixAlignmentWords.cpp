#include "ui/PlixAlignmentWords.h"

#include "layout/PlixKeywordTable.h"

namespace plix {

std::optional<PlixAlignment> FindAlign(const std::string& word)
{
    return FindKeyword(kAligns, word);
}

std::optional<PlixAlignment> FindGravity(const std::string& word)
{
    return FindKeyword(kGravities, word);
}

} // namespace plix
