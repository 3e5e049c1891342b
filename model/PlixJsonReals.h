#pragma once

#include <string>
#include <string_view>

namespace plix {

// Whether the JSON text may have numbers with a decimal point. If not,
// WithoutDecimalPoints() would return it unchanged, more slowly.
bool MayHaveReals(std::string_view json);

// Returns the JSON text with every number that has a decimal point written without
// one: "2.5" as "25e-1", which is exactly the same number. The JSON parser reads
// numbers in the process's locale, which may have another decimal point. Integers
// with an exponent have the same value in every locale.
//
// Strings and comments stay as they are. If `json` is not valid JSON, the parser
// rejects the result at the same place.
std::string WithoutDecimalPoints(std::string_view json);

} // namespace plix
