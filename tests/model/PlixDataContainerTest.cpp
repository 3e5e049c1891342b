#include "model/PlixDataContainer.h"

#include "model/PlixDataFiller.h"
#include "model/PlixDataSpacer.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataContainer, KeepsTheOrderAndSetsTheParent)
{
    const auto owner = std::make_shared<PlixDataFiller>();
    const auto first = std::make_shared<PlixDataSpacer>();
    const auto second = std::make_shared<PlixDataSpacer>();
    PlixDataContainer container;
    container.SetOwner(owner);
    EXPECT_EQ(container.GetChildCount(), 0);
    container.AddChild(first);
    container.AddChild(second);

    EXPECT_EQ(container.GetChildCount(), 2);
    EXPECT_EQ(container.GetChild(0), first);
    EXPECT_EQ(container.GetChild(1), second);
    EXPECT_EQ(container.GetChildren(),
              (std::vector<std::shared_ptr<PlixDataItem>> {first, second}));
    EXPECT_EQ(first->GetParent(), owner);
    EXPECT_EQ(second->GetParent(), owner);
}

TEST(PlixDataContainer, ReturnsNullForAnIndexOutOfRange)
{
    PlixDataContainer container;
    container.AddChild(std::make_shared<PlixDataSpacer>());
    EXPECT_EQ(container.GetChild(-1), nullptr);
    EXPECT_EQ(container.GetChild(1), nullptr);
}

TEST(PlixDataContainer, MovesAChildToItsNewOwner)
{
    const auto oldOwner = std::make_shared<PlixDataFiller>();
    const auto child = std::make_shared<PlixDataSpacer>();
    child->SetParent(oldOwner);
    PlixDataContainer container;
    container.AddChild(child);
    EXPECT_EQ(child->GetParent(), nullptr);
    EXPECT_EQ(oldOwner.use_count(), 1);
}

TEST(PlixDataContainer, ReleasesChildrenAndOwner)
{
    const auto owner = std::make_shared<PlixDataFiller>();
    std::weak_ptr<PlixDataItem> child;
    {
        PlixDataContainer container;
        container.SetOwner(owner);
        const auto spacer = std::make_shared<PlixDataSpacer>();
        child = spacer;
        container.AddChild(spacer);
        EXPECT_EQ(owner.use_count(), 3);
    }
    EXPECT_TRUE(child.expired());
    EXPECT_EQ(owner.use_count(), 1);

    PlixDataContainer container;
    container.SetOwner(owner);
    container.AddChild(std::make_shared<PlixDataSpacer>());
    container.Clear();
    EXPECT_EQ(container.GetChildCount(), 0);
    EXPECT_EQ(owner.use_count(), 1);
}

} // namespace
