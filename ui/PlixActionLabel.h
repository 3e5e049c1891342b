#pragma once

#include <plix/Plix.h>

#include <string>

namespace plix {

// The label of an action in the current language: the variant of this language, else the
// variant "default", else the plain label. Empty variants do not count.
std::string LabelOf(const ST_ACTION& action);

} // namespace plix
