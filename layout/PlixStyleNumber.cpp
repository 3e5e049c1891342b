#include "layout/PlixStyleNumber.h"

#include "layout/PlixLimits.h"

#include <algorithm>

namespace plix {

float ToStyleNumber(double number)
{
    // Returns NaN unchanged, because no comparison with it is true.
    return static_cast<float>(std::clamp(number, -kMaximumStyleNumber, kMaximumStyleNumber));
}

} // namespace plix
