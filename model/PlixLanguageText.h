#pragma once

#include <plix/Plix.h>

#include <string>

namespace plix {

// The variant that is shown in `language`: the text of that language, else the
// one under "default", else `plain`. A variant that is there counts even when
// it is empty.
std::string ChooseText(const PlixLanguageMap& variants, const std::string& language,
                       const std::string& plain);

} // namespace plix
