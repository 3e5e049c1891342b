#pragma once

#include "LifeMeasure.h"

#include <optional>
#include <string>
#include <vector>

namespace bench {

struct WayResult {
    std::string name;
    // Medians; no value for what the way lacks.
    std::array<std::optional<double>, allSteps.size()> times;
    LifeMemory memory;
    // From ours, in percent of the largest possible difference.
    double pictureDifference = 0;

    // Rounded corners and a line that is a few pixels lower make less.
    bool looksLikeOurs() const { return pictureDifference <= 5; }

    std::optional<double> time(Step step) const { return times[static_cast<std::size_t>(step)]; }
};

struct CardResult {
    std::string name;
    int elements = 0;
    // Ours, the limit, and others.
    std::vector<WayResult> ways;

    const WayResult& ours() const { return ways[0]; }
    const WayResult& limit() const { return ways[1]; }
};

} // namespace bench
