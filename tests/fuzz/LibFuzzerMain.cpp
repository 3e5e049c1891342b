// The entry points of libFuzzer. --target=NAME, after which libFuzzer's own options follow,
// chooses the target.
#include "FuzzHost.h"
#include "FuzzTargets.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <iostream>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maxSize);

namespace {

using plix::test::FuzzTarget;

const FuzzTarget* target = nullptr;

// An input that sets a counter for the first time is kept. The counters stand for steps of
// CPU time, so the search climbs towards expensive inputs.
__attribute__((section("__libfuzzer_extra_counters"))) std::uint8_t costCounters[32];

double cpuMilliseconds()
{
    timespec time {};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

void recordCost(double milliseconds)
{
    const double step = 2 * std::log2(std::max(milliseconds, 1.0));
    costCounters[std::min(static_cast<std::size_t>(step), sizeof costCounters - 1)] = 1;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    const std::string_view option = "--target=";
    for (int i = 1; i < *argc; ++i) {
        if (std::strncmp((*argv)[i], option.data(), option.size()) == 0)
            target = plix::test::findFuzzTarget((*argv)[i] + option.size());
    }
    if (!target) {
        std::cerr << "no such target\n";
        std::exit(EXIT_FAILURE);
    }
    plix::test::startFuzzHost();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const double start = cpuMilliseconds();
    target->run({reinterpret_cast<const char*>(data), size});
    recordCost(cpuMilliseconds() - start);
    return 0;
}

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maxSize, unsigned seed)
{
    constexpr unsigned kOneOf = 4;
    if (target->run != &plix::test::fuzzCard || seed % kOneOf == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    const std::string changed =
        plix::test::mutateCard({reinterpret_cast<const char*>(data), size}, seed);
    if (changed.size() > maxSize)
        return LLVMFuzzerMutate(data, size, maxSize);
    std::memcpy(data, changed.data(), changed.size());
    return changed.size();
}
