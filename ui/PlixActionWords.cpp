#include "ui/PlixActionWords.h"

#include "api/PlixCurrentLanguage.h"

namespace {

std::string Choose(const PlixLanguageMap& variants, const std::string& plain)
{
    for (const std::string& language : {plix::GetCurrentLanguage(), std::string("default")}) {
        std::string variant = variants.Get(language);
        if (!variant.empty())
            return variant;
    }
    return plain;
}

} // namespace

std::string plix::LabelOf(const ST_ACTION& action)
{
    return Choose(action.i18nLabels, action.label);
}

std::string plix::TextOf(const ST_ACTION& action)
{
    return Choose(action.i18nTexts, action.text);
}

std::string plix::DisplayTextOf(const ST_ACTION& action)
{
    return Choose(action.i18nDisplayTexts, action.displayText);
}
