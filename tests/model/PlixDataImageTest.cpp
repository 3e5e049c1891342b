#include "model/PlixDataImage.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataImage, HasDefaults)
{
    PlixDataImage image;
    EXPECT_EQ(image.GetAspectRatio(), "1:1");
    EXPECT_EQ(image.GetAspectMode(), "fit");
    EXPECT_EQ(image.GetSizePixels(), 100.0F);
}

} // namespace
