#pragma once

#include <benchmark/benchmark.h>

#include <chrono>

// Benchmarks compare two kinds of work. Each round does both, one after the
// other, so that what slows the machine down meets both.

template <class Work> double secondsOf(Work work)
{
    using Clock = std::chrono::steady_clock;
    const auto start = Clock::now();
    work();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

// The counter "ratio" is the time of `work` in units of that of `yardstick`.
template <class Work, class Yardstick>
void compare(benchmark::State& state, Work work, Yardstick yardstick)
{
    double workSeconds = 0;
    double yardstickSeconds = 0;
    for (auto _ : state) {
        const double seconds = secondsOf(work);
        state.SetIterationTime(seconds);
        workSeconds += seconds;
        yardstickSeconds += secondsOf(yardstick);
    }
    state.counters["ratio"] = workSeconds / yardstickSeconds;
}
