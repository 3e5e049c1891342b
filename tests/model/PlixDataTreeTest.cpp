#include "model/PlixDataTree.h"

#include "model/PlixDataItemCreater.h"
#include "model/PlixDataText.h"
#include "model/PlixItemKind.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

std::shared_ptr<PlixDataBubble> makeBubble()
{
    auto bubble = std::make_shared<PlixDataBubble>();
    bubble->InitZones();
    return bubble;
}

std::shared_ptr<PlixDataBox> addBox(PlixDataContainer& container)
{
    const auto box =
        std::dynamic_pointer_cast<PlixDataBox>(PlixDataItemCreater().Create(PlixKindBox));
    container.AddChild(box);
    return box;
}

TEST(PlixDataTree, KnowsTheBoxAround)
{
    const auto bubble = makeBubble();
    const auto box = addBox(*bubble->GetBody());
    const auto inner = addBox(*box->GetContainer());
    EXPECT_EQ(plix::ParentBox(*inner), box);
    EXPECT_EQ(plix::ParentBox(*box), nullptr) << "the bubble is no box";
    EXPECT_EQ(plix::ParentBox(*bubble), nullptr);
    EXPECT_FALSE(plix::IsInVerticalBox(*inner));
    box->SetLayout("vertical");
    EXPECT_TRUE(plix::IsInVerticalBox(*inner));
    EXPECT_FALSE(plix::IsInVerticalBox(*box));
    plix::DiscardDataTree(bubble);
}

TEST(PlixDataTree, KnowsTheReadingDirectionOfTheBubble)
{
    const auto bubble = makeBubble();
    const auto inner = addBox(*addBox(*bubble->GetBody())->GetContainer());
    EXPECT_FALSE(plix::IsInRightToLeftBubble(*inner));
    bubble->SetDirection("rtl");
    EXPECT_TRUE(plix::IsInRightToLeftBubble(*inner));
    EXPECT_FALSE(plix::IsInRightToLeftBubble(PlixDataText())) << "in no bubble at all";
    plix::DiscardDataTree(bubble);
}

TEST(PlixDataTree, FreesEveryItemOfEveryZone)
{
    auto bubble = makeBubble();
    std::vector<std::weak_ptr<PlixDataItem>> items = {bubble};
    for (const auto& zone : bubble->GetZones()) {
        const auto outer = addBox(*zone.container);
        const auto inner = addBox(*outer->GetContainer());
        items.push_back(outer);
        items.push_back(inner);
    }
    plix::DiscardDataTree(bubble);
    bubble.reset();
    for (std::size_t i = 0; i < items.size(); ++i)
        EXPECT_TRUE(items[i].expired()) << i;
}

TEST(PlixDataTree, ItemsThatAreStillHeldLoseTheirParent)
{
    auto bubble = makeBubble();
    const auto outer = addBox(*bubble->GetBody());
    const auto inner = addBox(*outer->GetContainer());
    plix::DiscardDataTree(bubble);
    EXPECT_EQ(outer->GetParent(), nullptr);
    EXPECT_EQ(inner->GetParent(), nullptr);
    EXPECT_EQ(outer->GetContainer()->GetChildCount(), 0);
}

TEST(PlixDataTree, IsTakenApartWithoutRecursion)
{
    constexpr int kDepth = 200000;
    auto bubble = makeBubble();
    auto innermost = addBox(*bubble->GetBody());
    for (int i = 0; i < kDepth; ++i)
        innermost = addBox(*innermost->GetContainer());
    const std::weak_ptr<PlixDataItem> last = innermost;
    innermost.reset();
    plix::DiscardDataTree(bubble);
    bubble.reset();
    EXPECT_TRUE(last.expired());
}

TEST(PlixDataTree, ABubbleWithoutZonesCanBeDiscarded)
{
    auto bubble = std::make_shared<PlixDataBubble>();
    plix::DiscardDataTree(bubble);
    EXPECT_EQ(bubble.use_count(), 1);
}

} // namespace
