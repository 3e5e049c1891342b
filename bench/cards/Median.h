#pragma once

#include <vector>

namespace bench {

// The middle value, or the mean of the two in the middle. 0 for no values.
double median(std::vector<double> values);

} // namespace bench
