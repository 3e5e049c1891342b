// How much work Yoga has with the example cards.
#include "support/PlixTest.h"
#include "ui/CardWork.h"
#include "ui/ExampleCards.h"
#include "ui/LayoutCosts.h"

namespace plix::test {
namespace {

class LayoutWork : public PlixTest, public testing::WithParamInterface<std::string> { };

TEST_P(LayoutWork, IsNotMoreThanItWas)
{
    const CardWork maximum = maximumWork(GetParam());
    const LayoutCosts costs;
    const TestCard card(exampleCard(GetParam()), showExamplePictures);
    EXPECT_LE(costs.visits(), maximum.visits);
    EXPECT_LE(costs.measureCalls(), maximum.measureCalls);
}

TEST_P(LayoutWork, IsNoneWhenNothingHasChanged)
{
    const TestCard card(exampleCard(GetParam()), showExamplePictures);
    Plix_RefreshLayout(card.controller());
    const LayoutCosts costs;
    Plix_RefreshLayout(card.controller());
    EXPECT_EQ(costs.layouts(), 0);
}

INSTANTIATE_TEST_SUITE_P(Cards, LayoutWork, testing::ValuesIn(exampleNames()),
                         [](const auto& card) { return card.param; });

} // namespace
} // namespace plix::test
