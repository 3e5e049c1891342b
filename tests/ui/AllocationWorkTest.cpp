// How often memory is allocated for the example cards. A cache that was not used again,
// or a copy that was not needed, shows in this count.
#include "bench/cards/HeapCount.h"
#include "support/PlixTest.h"
#include "ui/CardWork.h"
#include "ui/ExampleCards.h"

#include <algorithm>

namespace plix::test {
namespace {

std::int64_t allocationsOf(const std::string& json)
{
    bench::setHeapCounting(true);
    const bench::HeapCount before = bench::heapCount();
    const TestCard card(json, showExamplePictures);
    return (bench::heapCount() - before).allocations;
}

class AllocationWork : public PlixTest, public testing::WithParamInterface<std::string> { };

TEST_P(AllocationWork, IsNotMoreThanItWas)
{
    const std::string json = exampleCard(GetParam());
    // The first card finds fonts, and any card may be the one for which a table grows.
    std::int64_t fewest = allocationsOf(json);
    for (int i = 0; i < 3; ++i)
        fewest = std::min(fewest, allocationsOf(json));
    EXPECT_LE(fewest, maximumWork(GetParam()).allocations);
}

INSTANTIATE_TEST_SUITE_P(Cards, AllocationWork, testing::ValuesIn(exampleNames()),
                         [](const auto& card) { return card.param; });

} // namespace
} // namespace plix::test
