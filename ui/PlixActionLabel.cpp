#include "ui/PlixActionLabel.h"

#include "api/PlixCurrentLanguage.h"

namespace plix {

std::string LabelOf(const ST_ACTION& action)
{
    for (const std::string& language : {GetCurrentLanguage(), std::string("default")}) {
        std::string variant = action.i18nLabels.Get(language);
        if (!variant.empty())
            return variant;
    }
    return action.label;
}

} // namespace plix
