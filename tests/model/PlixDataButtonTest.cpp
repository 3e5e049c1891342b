#include "model/PlixDataButton.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataButton, HasDefaults)
{
    const PlixDataButton button;
    EXPECT_EQ(button.GetHeight(), "50");
    EXPECT_EQ(button.GetSize(), "md");
    EXPECT_EQ(button.GetColor(), "");
    EXPECT_EQ(button.GetStyle(), "");
    EXPECT_EQ(button.GetGravity(), "");
    EXPECT_EQ(button.GetPixelSize(), 16);
}

} // namespace
