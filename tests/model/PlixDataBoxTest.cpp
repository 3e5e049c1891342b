#include "model/PlixDataBox.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataBox, PaddingsAreWordsPixelsOrPercent)
{
    const struct {
        const char* text;
        int px;
        int percent;
    } rows[] = {
        {"", -1, -1},     {"xs", 2, -1},    {"sm", 4, -1},   {"md", 8, -1},
        {"lg", 12, -1},   {"xl", 16, -1},   {"xxl", 20, -1}, {"10px", 10, -1},
        {"10PX", 10, -1}, {"10Px", 10, -1}, {"10", 10, -1},  {"-3px", -3, -1},
        {"25%", 0, 25},   {"0px", 0, 0},    {"0", 0, 0},     {"0%", 0, 0},
        {"MD", 0, 0},     {"none", 0, 0},   {"1.5px", 0, 0}, {"99999999999px", 0, 0},
        {"2.5%", 0, 0},   {"-7%", 0, -7},
    };
    const struct {
        const char* name;
        void (PlixDataBox::*set)(std::string_view);
        PlixPadding (PlixDataBox::*get)() const;
    } edges[] = {
        {"all", &PlixDataBox::SetPaddingAll, &PlixDataBox::GetPaddingAll},
        {"top", &PlixDataBox::SetPaddingTop, &PlixDataBox::GetPaddingTop},
        {"bottom", &PlixDataBox::SetPaddingBottom, &PlixDataBox::GetPaddingBottom},
        {"start", &PlixDataBox::SetPaddingStart, &PlixDataBox::GetPaddingStart},
        {"end", &PlixDataBox::SetPaddingEnd, &PlixDataBox::GetPaddingEnd},
    };
    for (const auto& edge : edges) {
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string(edge.name) + " \"" + row.text + '"');
            PlixDataBox box;
            (box.*edge.set)(row.text);
            EXPECT_EQ((box.*edge.get)().px, row.px);
            EXPECT_EQ((box.*edge.get)().percent, row.percent);
        }
    }
}

TEST(PlixDataBox, AnEmptyPaddingResetsThePixels)
{
    PlixDataBox box;
    box.SetPaddingTop("25%");
    box.SetPaddingTop("");
    EXPECT_EQ(box.GetPaddingTop().px, -1);
    EXPECT_EQ(box.GetPaddingTop().percent, 25);
}

TEST(PlixDataBox, APaddingInPixelsKeepsThePercentage)
{
    PlixDataBox box;
    box.SetPaddingTop("25%");
    box.SetPaddingTop("md");
    EXPECT_EQ(box.GetPaddingTop().px, 8);
    EXPECT_EQ(box.GetPaddingTop().percent, 25);
}

TEST(PlixDataBox, AnEmptyEndPaddingResetsTheStartPadding)
{
    PlixDataBox box;
    box.SetPaddingStart("lg");
    box.SetPaddingEnd("sm");
    box.SetPaddingEnd("");
    EXPECT_EQ(box.GetPaddingStart().px, -1);
    EXPECT_EQ(box.GetPaddingEnd().px, 4);
}

TEST(PlixDataBox, SizesAreWordsPixelsOrPercent)
{
    const struct {
        const char* text;
        std::int64_t px;
        std::int64_t percent;
    } rows[] = {
        {"", -1, 0},       {"xs", 2, 0},    {"xxl", 20, 0}, {"120px", 120, 0},
        {"120PX", 120, 0}, {"120", 120, 0}, {"50%", 0, 50}, {"0", 0, 0},
        {"0px", 0, 0},     {"-5px", -5, 0}, {"wide", 0, 0}, {"100%", 0, 100},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.text);
        PlixDataBox box;
        box.SetWidth(row.text);
        EXPECT_EQ(box.GetWidth(), row.text);
        EXPECT_EQ(box.GetWidthLength().px, row.px);
        EXPECT_EQ(box.GetWidthLength().percent, row.percent);
        EXPECT_EQ(box.GetHeightLength().px, -1);
        box.SetHeight(row.text);
        EXPECT_EQ(box.GetHeight(), row.text);
        EXPECT_EQ(box.GetHeightLength().px, row.px);
        EXPECT_EQ(box.GetHeightLength().percent, row.percent);
    }
}

TEST(PlixDataBox, AnEmptySizeChangesTheTextOnly)
{
    PlixDataBox box;
    box.SetWidth("120px");
    box.SetWidth("");
    EXPECT_EQ(box.GetWidth(), "");
    EXPECT_EQ(box.GetWidthLength().px, 120);
    box.SetHeight("50%");
    box.SetHeight("");
    EXPECT_EQ(box.GetHeight(), "");
    EXPECT_EQ(box.GetHeightLength().px, 0);
    EXPECT_EQ(box.GetHeightLength().percent, 50);
}

TEST(PlixDataBox, LayoutWordsAreExact)
{
    const struct {
        const char* word;
        bool vertical;
        bool horizontal;
        bool baseline;
    } rows[] = {{"vertical", true, false, false},
                {"horizontal", false, true, false},
                {"baseline", false, false, true},
                {"", false, false, false},
                {"Vertical", false, false, false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.word);
        PlixDataBox box;
        box.SetLayout(row.word);
        EXPECT_EQ(box.IsVertical(), row.vertical);
        EXPECT_EQ(box.IsHorizontal(), row.horizontal);
        EXPECT_EQ(box.IsBaseline(), row.baseline);
    }
}

} // namespace
