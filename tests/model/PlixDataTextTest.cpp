#include "model/PlixDataText.h"

#include <gtest/gtest.h>

namespace {

TEST(PlixDataText, HasDefaults)
{
    const PlixDataText text;
    EXPECT_EQ(text.GetMaxLines(), 0);
    EXPECT_FALSE(text.GetWrap());
    EXPECT_EQ(text.GetPixelSize(), 16);
    EXPECT_TRUE(text.GetSpans().empty());
    EXPECT_TRUE(text.GetTexts().texts.empty());
}

TEST(PlixDataText, SpansAreInTheOrderOfTheirAddition)
{
    PlixDataText text;
    text.AddSpan().SetText("first");
    text.AddSpan().SetText("second");
    ASSERT_EQ(text.GetSpans().size(), 2U);
    EXPECT_EQ(text.GetSpans()[0].GetText(), "first");
    EXPECT_EQ(text.GetSpans()[1].GetText(), "second");
}

TEST(PlixDataText, ASpanHasItsOwnVariants)
{
    PlixDataText text;
    text.SetText("en", "of the text");
    text.AddSpan().SetText("en", "of the span");
    EXPECT_EQ(text.GetTexts().Get("en"), "of the text");
    EXPECT_EQ(text.GetSpans()[0].GetTexts().Get("en"), "of the span");
}

} // namespace
