// How often memory is allocated for the example cards. A cache that was not used again,
// or a copy that was not needed, shows in this count.
#include "support/PlixTest.h"
#include "ui/AllocationCount.h"
#include "ui/CardWork.h"
#include "ui/ExampleCards.h"

#include <algorithm>

namespace plix::test {
namespace {

long allocationsOf(const std::string& json)
{
    const long before = allocationCount();
    const TestCard card(json, showExamplePictures);
    return allocationCount() - before;
}

class AllocationWork : public PlixTest, public testing::WithParamInterface<std::string> { };

TEST_P(AllocationWork, IsNotMoreThanItWas)
{
    const std::string json = exampleCard(GetParam());
    // The first card finds fonts, and any card may be the one for which a table grows.
    long fewest = allocationsOf(json);
    for (int i = 0; i < 3; ++i)
        fewest = std::min(fewest, allocationsOf(json));
    EXPECT_LE(fewest, maximumWork(GetParam()).allocations);
}

INSTANTIATE_TEST_SUITE_P(Cards, AllocationWork, testing::ValuesIn(exampleNames()),
                         [](const auto& card) { return card.param; });

} // namespace
} // namespace plix::test
