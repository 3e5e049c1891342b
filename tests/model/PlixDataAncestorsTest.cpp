#include "model/PlixDataAncestors.h"

#include "model/MakeItems.h"
#include "model/PlixDataText.h"
#include "model/PlixDiscardDataTree.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataAncestors, FindsTheParentBox)
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

TEST(PlixDataAncestors, FindsTheDirectionOfTheBubble)
{
    const auto bubble = makeBubble();
    const auto inner = addBox(*addBox(*bubble->GetBody())->GetContainer());
    EXPECT_FALSE(plix::IsInRightToLeftBubble(*inner));
    bubble->SetDirection("rtl");
    EXPECT_TRUE(plix::IsInRightToLeftBubble(*inner));
    EXPECT_FALSE(plix::IsInRightToLeftBubble(PlixDataText())) << "in no bubble at all";
    plix::DiscardDataTree(bubble);
}

} // namespace
