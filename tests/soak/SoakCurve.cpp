#include "soak/SoakCurve.h"

#include <cstdio>

namespace plix::test {
namespace {

// Caches of Qt that are not full yet.
constexpr std::int64_t kCacheBytes = 4096;
// malloc() may give a block a few bytes more than another of the same size, so what the
// registry's entries take is known to a few bytes only. A block that got lost has 24 bytes
// at least.
constexpr std::int64_t kInexactBytesPerCard = 16;
constexpr double kMaximumSlowdown = 1.5;
constexpr int kShortPart = 1000;

} // namespace

void SoakCurve::print() const
{
    std::printf("   cards  us per card  heap bytes per card  of the registry  unexplained in all"
                "  resident MiB\n");
    int cards = 0;
    std::int64_t unexplained = 0;
    for (const SoakPart& part : parts_) {
        cards += part.cards;
        unexplained += part.unexplainedBytes();
        std::printf("%8d %12.1f %20.1f %16.1f %19lld %13.1f\n", cards, part.microsecondsPerCard(),
                    static_cast<double>(part.heapBytes) / part.cards,
                    static_cast<double>(part.registryBytes) / part.cards,
                    static_cast<long long>(unexplained),
                    static_cast<double>(part.residentBytes) / (1024 * 1024));
    }
}

bool SoakCurve::isExplained() const
{
    std::int64_t left = kCacheBytes;
    for (const SoakPart& part : parts_)
        left += kInexactBytesPerCard * part.cards - part.unexplainedBytes();
    return left >= 0;
}

bool SoakCurve::isFlat() const
{
    const SoakPart& first = parts_.front();
    return first.cards < kShortPart
        || parts_.back().microsecondsPerCard() <= kMaximumSlowdown * first.microsecondsPerCard();
}

} // namespace plix::test
