#pragma once

namespace plix {

// A number that goes to Yoga or Qt, from -1,000,000 to 1,000,000 (kMaximumStyleNumber).
// NaN stays NaN: it is Yoga's word for a value that is not set.
//
// Every number of a style and every computed length goes through here.
float ToStyleNumber(double number);

} // namespace plix
