#pragma once

#include "HeapCount.h"
#include "Step.h"

#include <array>

namespace bench {

class Way;

// Thread CPU microseconds by step; those of steps that the way lacks are 0.
using StepTimes = std::array<double, allSteps.size()>;

// Leads one life, and gives its times.
StepTimes timeLife(Way& way, double clockOverhead);

// What a life takes of the heap.
struct LifeMemory {
    // Of reading and building.
    HeapCount built;
    // Of the first paint, too.
    HeapCount painted;
    // Of a whole life.
    HeapCount kept;
};

// Lives before have filled what is kept for all lives.
LifeMemory weighLife(Way& way);

} // namespace bench
