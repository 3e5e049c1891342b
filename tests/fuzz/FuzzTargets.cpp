#include "FuzzTargets.h"

#include <algorithm>

namespace plix::test {

const std::vector<FuzzTarget>& fuzzTargets()
{
    static const std::vector<FuzzTarget> targets {
        {"reader", &fuzzReader},   {"style", &fuzzStyle}, {"text", &fuzzText},
        {"picture", &fuzzPicture}, {"card", &fuzzCard},   {"calls", &fuzzCalls}};
    return targets;
}

const FuzzTarget* findFuzzTarget(std::string_view name)
{
    const auto found =
        std::find_if(fuzzTargets().begin(), fuzzTargets().end(),
                     [name](const FuzzTarget& target) { return target.name == name; });
    return found == fuzzTargets().end() ? nullptr : &*found;
}

} // namespace plix::test
