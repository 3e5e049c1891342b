#include "ThreadClock.h"

#include "Median.h"

#include <ctime>

namespace bench {

double threadMicroseconds()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

double clockOverhead()
{
    constexpr int count = 1001;
    std::vector<double> times;
    for (int i = 0; i < count; ++i) {
        const double start = threadMicroseconds();
        times.push_back(threadMicroseconds() - start);
    }
    return median(times);
}

} // namespace bench
