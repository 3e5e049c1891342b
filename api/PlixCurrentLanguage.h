#pragma once

#include <string>

namespace plix {

// The code of the language that cards show, process-wide. The default is "en".
void SetCurrentLanguage(const std::string& language);
std::string GetCurrentLanguage();

} // namespace plix
