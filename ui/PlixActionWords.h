#pragma once

#include <plix/Plix.h>

#include <string>

namespace plix {

// The words of an action in the current language: the variant of this language, else the
// variant "default", else the plain words. Empty variants do not count.
std::string LabelOf(const ST_ACTION& action);
std::string TextOf(const ST_ACTION& action);
std::string DisplayTextOf(const ST_ACTION& action);

} // namespace plix
