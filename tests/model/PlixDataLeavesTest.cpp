#include "model/PlixDataLeaves.h"

#include "model/PlixDataBox.h"
#include "model/PlixDataImage.h"

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

TEST(PlixDataImage, HasDefaults)
{
    PlixDataImage image;
    EXPECT_EQ(image.GetAspectRatio(), "1:1");
    EXPECT_EQ(image.GetAspectMode(), "fit");
    EXPECT_EQ(image.GetSizePixels(), 100.0F);
}

TEST(PlixDataIcon, HasDefaults)
{
    const PlixDataIcon icon;
    EXPECT_EQ(icon.GetAspectRatio(), "");
    EXPECT_EQ(icon.GetPixelSize(), 16);
}

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

TEST(PlixDataLeaves, OnlyAFillerGrowsOfTheItemsWithoutCommonKeys)
{
    const auto column = std::make_shared<PlixDataBox>();
    column->SetLayout("vertical");
    PlixDataFiller filler;
    filler.SetParent(column);
    EXPECT_EQ(filler.GetGrow(), 1) << "whatever the box";
    EXPECT_TRUE(filler.IsFlexDefault());
    filler.SetFlex(4);
    EXPECT_EQ(filler.GetGrow(), 4);
    EXPECT_FALSE(filler.IsFlexDefault());
    EXPECT_EQ(PlixDataSpacer().GetGrow(), 0);
    EXPECT_EQ(PlixDataSeparator().GetGrow(), 0);
}

} // namespace
