#include "LifeMeasure.h"

#include "ThreadClock.h"
#include "Way.h"

#include <QCoreApplication>

#include <algorithm>

namespace bench {
namespace {

double timeStep(Way& way, Step step, double clockOverhead)
{
    way.prepare(step);
    const double start = threadMicroseconds();
    way.run(step);
    return std::max(0.0, threadMicroseconds() - start - clockOverhead);
}

// What objects leave to be done later.
void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// What the step itself takes; what is made ready for it is its surroundings.
HeapCount countStep(Way& way, Step step)
{
    if (!way.has(step))
        return {};
    way.prepare(step);
    const HeapCount start = heapCount();
    way.run(step);
    return heapCount() - start;
}

// What a single life keeps is lost in what grows by leaps, such as tables.
constexpr int livesForMean = 16;

HeapCount weighWholeLives(Way& way)
{
    const HeapCount start = heapCount();
    for (int i = 0; i < livesForMean; ++i) {
        for (const Step step : allSteps)
            countStep(way, step);
        settle();
    }
    const HeapCount all = heapCount() - start;
    return {all.allocations / livesForMean, all.liveBytes / livesForMean};
}

} // namespace

StepTimes timeLife(Way& way, double clockOverhead)
{
    StepTimes times {};
    for (const Step step : allSteps) {
        if (way.has(step))
            times[static_cast<std::size_t>(step)] = timeStep(way, step, clockOverhead);
    }
    settle();
    return times;
}

LifeMemory weighLife(Way& way)
{
    LifeMemory memory;
    setHeapCounting(true);
    const HeapCount read = countStep(way, Step::Read);
    memory.built = read + countStep(way, Step::Build);
    memory.painted = memory.built + countStep(way, Step::FirstPaint);
    countStep(way, Step::Delete);
    settle();
    memory.kept = weighWholeLives(way);
    setHeapCounting(false);
    return memory;
}

} // namespace bench
