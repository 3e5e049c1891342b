#include "model/PlixItemKind.h"

#include "layout/PlixKeywordTable.h"
#include "model/format/PlixWords.h"

namespace plix {

PlixItemKind ToItemKind(std::string_view word)
{
    return FindKeyword(kTypeWords, word).value_or(PlixKindNone);
}

} // namespace plix
