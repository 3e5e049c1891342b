#include "model/PlixLanguageText.h"

namespace plix {

std::string ChooseText(const PlixLanguageMap& variants, const std::string& language,
                       const std::string& plain)
{
    for (const std::string& code : {language, std::string("default")}) {
        if (variants.Contains(code))
            return variants.Get(code);
    }
    return plain;
}

} // namespace plix
