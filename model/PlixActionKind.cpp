#include "model/PlixActionKind.h"

#include "layout/PlixKeywordTable.h"
#include "model/PlixDataItem.h"
#include "model/format/PlixWords.h"

#include <plix/Plix.h>

#include <memory>

namespace plix {

PlixActionKind ToActionKind(const std::string& word)
{
    return FindKeyword(kActionWords, word).value_or(PlixActionNone);
}

bool HasKnownAction(const PlixDataItem& data)
{
    const std::shared_ptr<ST_ACTION> action = data.GetAction();
    return action && ToActionKind(action->type) != PlixActionNone;
}

} // namespace plix
