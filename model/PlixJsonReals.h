#pragma once

#include <string>

namespace plix {

// The JSON text with every number that has a decimal point written without one:
// "2.5" as "25e-1", which is the same number to the last digit. The JSON parser
// reads numbers in the process's locale, which may have another decimal point;
// whole numbers with an exponent mean the same in every locale.
//
// Strings and comments stay as they are. Text that is no JSON is harmless: what
// the parser refuses it still refuses at the same place.
std::string WithoutDecimalPoints(const std::string& json);

} // namespace plix
