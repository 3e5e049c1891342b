#pragma once

#include <plix/Plix.h>

#include <string>

namespace plix {

// The text to show in `language`: the variant of this language, else the variant
// "default", else `plain`. A variant may be empty.
std::string ChooseText(const PlixLanguageMap& variants, const std::string& language,
                       const std::string& plain);

} // namespace plix
