// The cost of laying out the costliest cards, counted in calls.
#include "CostlyCards.h"
#include "LayoutCosts.h"
#include "layout/PlixLimits.h"
#include "support/PlixTest.h"

#include <yoga/algorithm/VisitLimit.h>

namespace plix::test {
namespace {

constexpr int kDepth = kMaximumNestedBoxes;
constexpr double kMaxPerItem = 2.0 * kDepth;
// Some texts make the box around them lay itself and all below it out again. On the
// average that is half of the card.
constexpr double kMaxPerItemInABuild = kDepth * kMaxPerItem / 2;

void expectAffordable(const CostlyCard& card, const std::string& json)
{
    SCOPED_TRACE(card.name);
    const LayoutCosts costs;
    const TestCard shown(json);
    EXPECT_LE(costs.allVisits(), kMaxPerItemInABuild);
    Plix_RefreshLayout(shown.controller());
    Plix_ModifyHeight(shown.controller(), 600);
    Plix_RefreshLayout(shown.controller());
    EXPECT_LE(costs.highest().visits, kMaxPerItem);
    EXPECT_LE(costs.highest().measureCalls, kMaxPerItem);
}

using CardLayoutCost = PlixTest;

TEST_F(CardLayoutCost, IsAFewCallsPerItemInTheDeepestCards)
{
    for (const CostlyCard& card : costlyCards())
        expectAffordable(card, card.json(kDepth));
}

TEST_F(CardLayoutCost, IsAFewCallsPerItemInTheLargestCards)
{
    const std::vector<CostlyCard> cards = costlyCards();
    for (std::size_t i = 0; i < cards.size(); i += 31)
        expectAffordable(cards[i], cards[i].largestJson(kDepth));
}

TEST_F(CardLayoutCost, IsBelowTheLimitInCardsThatPeopleWrite)
{
    // At the limit, sizes are no longer exact.
    for (const CostlyCard& card : costlyCards()) {
        SCOPED_TRACE(card.name);
        const LayoutCosts costs;
        const TestCard shown(card.json(8));
        EXPECT_LT(costs.highest().visits, facebook::yoga::plix::MaxVisitsPerNode);
    }
}

class RandomLayoutCost : public PlixTest, public testing::WithParamInterface<unsigned> { };

TEST_P(RandomLayoutCost, IsAFewCallsPerItem)
{
    for (unsigned i = 0; i < 20; ++i) {
        const CostlyCard card = randomCostlyCard(GetParam() * 20 + i);
        expectAffordable(card, card.json(kDepth));
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomLayoutCost, testing::Range(0U, 10U));

} // namespace
} // namespace plix::test
