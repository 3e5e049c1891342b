#include "model/PlixDataFiller.h"

#include "model/PlixDataBox.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

TEST(PlixDataFiller, GrowsByItsFlexInEveryBox)
{
    const auto column = std::make_shared<PlixDataBox>();
    column->SetLayout("vertical");
    PlixDataFiller filler;
    filler.SetParent(column);
    EXPECT_EQ(filler.GetGrow(), 1);
    EXPECT_TRUE(filler.IsFlexDefault());
    filler.SetFlex(4);
    EXPECT_EQ(filler.GetGrow(), 4);
    EXPECT_FALSE(filler.IsFlexDefault());
}

} // namespace
