#pragma once

#include <string>

namespace plix {

// The language code, process-wide, whose variants of texts are shown; "en"
// until the host sets another.
void SetCurrentLanguage(const std::string& language);
std::string GetCurrentLanguage();

} // namespace plix
