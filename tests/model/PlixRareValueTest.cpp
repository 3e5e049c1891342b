#include "model/PlixRareValue.h"

#include <gtest/gtest.h>

#include <string>

namespace {

struct Size {
    int pixels = -1;
};

TEST(PlixRareValue, IsADefaultValueUntilItIsMade)
{
    PlixRareValue<Size> value;
    EXPECT_EQ(value.Get().pixels, -1);
    value.Make().pixels = 5;
    EXPECT_EQ(value.Get().pixels, 5);
    EXPECT_EQ(value.Make().pixels, 5);
    EXPECT_EQ(PlixRareValue<Size>().Get().pixels, -1);
}

TEST(PlixRareValue, ACopyIsIndependent)
{
    PlixRareValue<std::string> value;
    PlixRareValue<std::string> copy = value;
    copy.Make() = "copy";
    EXPECT_EQ(value.Get(), "");
    value = copy;
    EXPECT_EQ(value.Get(), "copy");
    value.Make() = "original";
    EXPECT_EQ(copy.Get(), "copy");
}

} // namespace
