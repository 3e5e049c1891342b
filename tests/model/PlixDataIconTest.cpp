#include "model/PlixDataIcon.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataIcon, HasDefaults)
{
    const PlixDataIcon icon;
    EXPECT_EQ(icon.GetAspectRatio(), "");
    EXPECT_EQ(icon.GetPixelSize(), 16);
}

} // namespace
