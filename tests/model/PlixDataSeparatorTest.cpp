#include "model/PlixDataSeparator.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataSeparator, DoesNotGrow)
{
    EXPECT_EQ(PlixDataSeparator().GetGrow(), 0);
}

} // namespace
