#include "model/PlixDiscardDataTree.h"

#include "model/MakeItems.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <vector>

namespace plix::test {
namespace {

TEST(PlixDiscardDataTree, FreesEveryItemOfEveryZone)
{
    auto bubble = makeBubble();
    std::vector<std::weak_ptr<PlixDataItem>> items = {bubble};
    for (const auto& zone : bubble->GetZones()) {
        const auto outer = addBox(*zone.container);
        const auto inner = addBox(*outer->GetContainer());
        items.push_back(outer);
        items.push_back(inner);
    }
    DiscardDataTree(bubble);
    bubble.reset();
    for (std::size_t i = 0; i < items.size(); ++i)
        EXPECT_TRUE(items[i].expired()) << i;
}

TEST(PlixDiscardDataTree, RemovesTheParentOfItemsThatAreStillHeld)
{
    auto bubble = makeBubble();
    const auto outer = addBox(*bubble->GetBody());
    const auto inner = addBox(*outer->GetContainer());
    DiscardDataTree(bubble);
    EXPECT_EQ(outer->GetParent(), nullptr);
    EXPECT_EQ(inner->GetParent(), nullptr);
    EXPECT_EQ(outer->GetContainer()->GetChildCount(), 0);
}

TEST(PlixDiscardDataTree, DoesNotRecurse)
{
    constexpr int kDepth = 200000;
    auto bubble = makeBubble();
    auto innermost = addBox(*bubble->GetBody());
    for (int i = 0; i < kDepth; ++i)
        innermost = addBox(*innermost->GetContainer());
    const std::weak_ptr<PlixDataItem> last = innermost;
    innermost.reset();
    DiscardDataTree(bubble);
    bubble.reset();
    EXPECT_TRUE(last.expired());
}

TEST(PlixDiscardDataTree, AcceptsABubbleWithoutZones)
{
    auto bubble = std::make_shared<PlixDataBubble>();
    DiscardDataTree(bubble);
    EXPECT_EQ(bubble.use_count(), 1);
}

} // namespace
} // namespace plix::test
