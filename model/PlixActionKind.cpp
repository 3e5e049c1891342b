#include "model/PlixActionKind.h"

#include "layout/PlixKeywordTable.h"
#include "model/PlixDataItem.h"

#include <plix/Plix.h>

#include <array>
#include <memory>

namespace plix {

namespace {

constexpr std::array kActionWords = std::to_array<PlixKeyword<PlixActionKind>>(
    {{"uri", PlixActionUri}, {"message", PlixActionMessage}, {"postback", PlixActionPostback}});

} // namespace

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
