#include "Step.h"

#include <cstddef>

namespace bench {

const char* titleOf(Step step)
{
    static constexpr std::array<const char*, allSteps.size()> titles {
        "read",           "build",         "first paint",   "repaint, scene",
        "repaint, items", "refresh first", "refresh again", "other height",
        "other width",    "highlight",     "delete + free",
    };
    return titles[static_cast<std::size_t>(step)];
}

} // namespace bench
