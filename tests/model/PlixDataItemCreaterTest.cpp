#include "model/PlixDataItemCreater.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataButton.h"
#include "model/PlixDataFiller.h"
#include "model/PlixDataIcon.h"
#include "model/PlixDataImage.h"
#include "model/PlixDataSeparator.h"
#include "model/PlixDataSpacer.h"
#include "model/PlixDataText.h"

#include <gtest/gtest.h>

#include <climits>

namespace {

template <typename Item> bool isA(const std::shared_ptr<PlixDataItem>& item)
{
    return dynamic_cast<const Item*>(item.get()) != nullptr;
}

const struct {
    int kind;
    bool (*isRightClass)(const std::shared_ptr<PlixDataItem>& item);
} kCreated[] = {
    {2, &isA<PlixDataImage>},  {3, &isA<PlixDataBox>},       {4, &isA<PlixDataText>},
    {5, &isA<PlixDataIcon>},   {6, &isA<PlixDataButton>},    {7, &isA<PlixDataSpacer>},
    {8, &isA<PlixDataFiller>}, {9, &isA<PlixDataSeparator>},
};

TEST(PlixDataItemCreater, CreatesTheClassOfEachKind)
{
    const PlixDataItemCreater creater;
    for (const auto& row : kCreated) {
        SCOPED_TRACE(row.kind);
        const auto item = creater.Create(row.kind);
        ASSERT_NE(item, nullptr);
        EXPECT_TRUE(row.isRightClass(item));
        EXPECT_EQ(item->GetType(), row.kind);
        // A shared pointer owns it.
        EXPECT_EQ(item->shared_from_this(), item);
        EXPECT_EQ(item.use_count(), row.kind == 3 ? 2 : 1);
        if (const auto box = std::dynamic_pointer_cast<PlixDataBox>(item))
            box->GetContainer()->Clear();
    }
}

TEST(PlixDataItemCreater, ReturnsNullForOtherKinds)
{
    const PlixDataItemCreater creater;
    for (const int kind : {0, 1, 10, -1, INT_MAX, INT_MIN})
        EXPECT_EQ(creater.Create(kind), nullptr) << kind;
}

TEST(PlixDataItemCreater, CreatesANewItemEachTime)
{
    const PlixDataItemCreater creater;
    for (const auto& row : kCreated) {
        const auto first = creater.Create(row.kind);
        const auto second = creater.Create(row.kind);
        EXPECT_NE(first, second) << row.kind;
        for (const auto& item : {first, second}) {
            if (const auto box = std::dynamic_pointer_cast<PlixDataBox>(item))
                box->GetContainer()->Clear();
        }
    }
}

TEST(PlixDataItemCreater, ABoxIsTheParentOfItsChildren)
{
    const PlixDataItemCreater creater;
    const auto box = std::dynamic_pointer_cast<PlixDataBox>(creater.Create(3));
    const auto text = creater.Create(4);
    ASSERT_NE(box->GetContainer(), nullptr);
    EXPECT_EQ(box->GetContainer()->GetChildCount(), 0);
    box->GetContainer()->AddChild(text);
    EXPECT_EQ(text->GetParent(), box);

    box->GetContainer()->Clear();
    text->SetParent(nullptr);
}

} // namespace
