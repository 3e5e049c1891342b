// A host that lives long: soak [CARDS]. One card after the other is read, built, painted,
// clicked, selected and freed; then many are alive in one scene and freed. Prints how memory
// and time go. The exit code is 1 if memory grows by anything but what the library keeps, or if
// cards take longer and longer.
#include "bench/cards/HeapCount.h"
#include "bench/cards/ThreadClock.h"
#include "soak/SoakCurve.h"
#include "soak/SoakHost.h"
#include "soak/SoakScene.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <unistd.h>
#include <vector>

namespace plix::test {
namespace {

constexpr int kParts = 10;
// Fonts are found, and tables and caches get their sizes.
constexpr int kFirstCards = 100;

std::int64_t residentBytes()
{
    std::ifstream file("/proc/self/statm");
    std::int64_t all = 0;
    std::int64_t resident = 0;
    file >> all >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

SoakPart runPart(SoakHost& host, int first, int count)
{
    const double start = bench::threadMicroseconds();
    const std::int64_t heap = bench::heapCount().liveBytes;
    const std::int64_t registry = host.registryBytes();
    for (int n = first; n < first + count; ++n)
        host.live(n);
    return {count, bench::threadMicroseconds() - start, bench::heapCount().liveBytes - heap,
            host.registryBytes() - registry, residentBytes()};
}

SoakCurve runCards(int cards)
{
    SoakHost host;
    runPart(host, 0, kFirstCards);
    SoakCurve curve;
    const int perPart = cards / kParts;
    for (int part = 0; part < kParts; ++part)
        curve.add(runPart(host, kFirstCards + part * perPart, perPart));
    std::printf("%d clicks and keys arrived.\n", host.clicks());
    return curve;
}

bool check(bool holds, const char* failure)
{
    if (!holds)
        std::printf("FAILED: %s\n", failure);
    return holds;
}

// Half as many cards and all of them: freeing must not take more per card.
bool soakScene(int cards)
{
    constexpr double kSlower = 1.5;
    constexpr int kShort = 1000;
    const int all = cards / 5;
    std::vector<SceneTimes> times;
    for (const int count : {all / 4, all / 2, all}) {
        times.push_back(timeScene(count));
        const SceneTimes& last = times.back();
        std::printf("%d alive in one scene: %.1f us per card to build, %.1f to free\n", count,
                    last.build, last.free);
    }
    const bool isFlat = all < kShort || times.back().free <= kSlower * times.front().free;
    return check(isFlat, "freeing cards of one scene takes longer for more of them");
}

bool soak(int cards)
{
    const SoakCurve curve = runCards(cards);
    curve.print();
    const bool isExplained =
        check(curve.isExplained(), "memory grows by more than what the library keeps");
    const bool isFlat = check(curve.isFlat(), "cards take longer and longer");
    return isExplained && isFlat && soakScene(cards);
}

} // namespace
} // namespace plix::test

int main(int argc, char** argv)
{
    constexpr int kCards = 100'000;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", PLIX_TEST_FONTS_CONF);
    bench::setHeapCounting(true);
    const QApplication application(argc, argv);
    const int cards = argc > 1 ? std::atoi(argv[1]) : kCards;
    if (cards < 10) {
        std::fprintf(stderr, "usage: soak [CARDS], at least 10\n");
        return EXIT_FAILURE;
    }
    return plix::test::soak(cards) ? EXIT_SUCCESS : EXIT_FAILURE;
}
