#include "model/PlixDataAncestors.h"

#include "model/MakeItems.h"
#include "model/PlixDataText.h"
#include "model/PlixDiscardDataTree.h"

#include <gtest/gtest.h>

namespace plix::test {
namespace {

TEST(PlixDataAncestors, FindsTheParentBox)
{
    const auto bubble = makeBubble();
    const auto box = addBox(*bubble->GetBody());
    const auto inner = addBox(*box->GetContainer());
    EXPECT_EQ(ParentBox(*inner), box);
    EXPECT_EQ(ParentBox(*box), nullptr) << "the bubble is not a box";
    EXPECT_EQ(ParentBox(*bubble), nullptr);
    EXPECT_FALSE(IsInVerticalBox(*inner));
    box->SetLayout("vertical");
    EXPECT_TRUE(IsInVerticalBox(*inner));
    EXPECT_FALSE(IsInVerticalBox(*box));
    DiscardDataTree(bubble);
}

TEST(PlixDataAncestors, FindsTheDirectionOfTheBubble)
{
    const auto bubble = makeBubble();
    const auto inner = addBox(*addBox(*bubble->GetBody())->GetContainer());
    EXPECT_FALSE(IsInRightToLeftBubble(*inner));
    bubble->SetDirection("rtl");
    EXPECT_TRUE(IsInRightToLeftBubble(*inner));
    EXPECT_FALSE(IsInRightToLeftBubble(PlixDataText())) << "in no bubble at all";
    DiscardDataTree(bubble);
}

} // namespace
} // namespace plix::test
