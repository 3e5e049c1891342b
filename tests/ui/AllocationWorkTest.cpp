// How often memory is allocated for the example cards. A cache that was not used again,
// or a copy that was not needed, shows in this count.
#include "bench/cards/HeapCount.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/CardWork.h"
#include "ui/ExampleCards.h"
#include "ui/Hazards.h"

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

std::int64_t allocationsOf(const Hazard& hazard, int n)
{
    const std::string json = hazard.json(n);
    bench::setHeapCounting(true);
    const bench::HeapCount before = bench::heapCount();
    const TestCard card(json, [&](PlixDataController* controller) {
        PlixDisplayParam param;
        param.markupEnabled = hazard.hasMarkup;
        Plix_SetDisplayParam(controller, param);
    });
    ignoreLog();
    return (bench::heapCount() - before).allocations;
}

class HazardAllocations : public PlixTest, public testing::WithParamInterface<Hazard> { };

TEST_P(HazardAllocations, GrowWithTheSizeOnly)
{
    std::int64_t half = allocationsOf(GetParam(), GetParam().n);
    for (const int factor : {2, 4}) {
        const std::int64_t whole = allocationsOf(GetParam(), factor * GetParam().n);
        EXPECT_LE(whole, 2 * half + half / 5 + 100) << "x" << factor;
        half = whole;
    }
}

INSTANTIATE_TEST_SUITE_P(Cards, HazardAllocations, testing::ValuesIn(hazards()), RowName());

} // namespace
} // namespace plix::test
