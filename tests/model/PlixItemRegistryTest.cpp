#include "model/PlixItemRegistry.h"

#include "model/PlixDataSpacer.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixItemRegistry, IsOneObject)
{
    EXPECT_EQ(&PlixItemRegistry::GetInstance(), &PlixItemRegistry::GetInstance());
}

TEST(PlixItemRegistry, FindsItemsByTheirAddressAndKeepsThem)
{
    PlixItemRegistry& registry = PlixItemRegistry::GetInstance();
    auto item = std::make_shared<PlixDataSpacer>();
    const PlixDataItem* const address = item.get();
    const auto key = static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(address));
    EXPECT_EQ(PlixItemRegistry::KeyOf(address), key);
    EXPECT_EQ(registry.Find(key), nullptr);

    EXPECT_EQ(registry.Add(item), key);
    EXPECT_EQ(registry.Find(key), item);
    EXPECT_EQ(registry.Add(item), key) << "adding it again changes nothing";
    item.reset();
    ASSERT_NE(registry.Find(key), nullptr);
    EXPECT_EQ(registry.Find(key).get(), address);
}

TEST(PlixItemRegistry, FindsNothingForUnknownKeys)
{
    const PlixDataSpacer unregistered;
    const PlixItemRegistry& registry = PlixItemRegistry::GetInstance();
    for (const std::int64_t key : {std::int64_t {0}, std::int64_t {-1}, std::int64_t {12345},
                                   PlixItemRegistry::KeyOf(&unregistered)})
        EXPECT_EQ(registry.Find(key), nullptr) << key;
}

TEST(PlixItemRegistry, TheRoleOfTheKeysIsFixed)
{
    EXPECT_EQ(plix::kDataItemRole, 256);
}

} // namespace
