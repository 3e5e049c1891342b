#include "model/PlixDataSpacer.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataSpacer, SizeWordsGivePixels)
{
    const struct {
        const char* word;
        float pixels;
    } rows[] = {{"xs", 2},   {"sm", 4}, {"md", 8}, {"lg", 12},  {"xl", 16},
                {"xxl", 20}, {"", 8},   {"XS", 8}, {"30px", 8}, {"huge", 8}};
    for (const auto& row : rows) {
        PlixDataSpacer spacer;
        spacer.SetSize(row.word);
        EXPECT_EQ(spacer.GetSizePixels(), row.pixels) << row.word;
    }
}

TEST(PlixDataSpacer, DoesNotGrow)
{
    EXPECT_EQ(PlixDataSpacer().GetGrow(), 0);
}

} // namespace
