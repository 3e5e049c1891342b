#include "model/PlixFieldTexts.h"

#include <gtest/gtest.h>

#include <string>

namespace {

TEST(PlixFieldTexts, AFieldHasItsDefaultUntilItIsSet)
{
    PlixFieldTexts texts;
    EXPECT_EQ(texts.Get(PlixField::Color), "");
    EXPECT_EQ(texts.Get(PlixField::Position, "relative"), "relative");
    texts.Set(PlixField::Position, "absolute");
    EXPECT_EQ(texts.Get(PlixField::Position, "relative"), "absolute");
    EXPECT_EQ(texts.Get(PlixField::Color), "");
}

TEST(PlixFieldTexts, AnEmptyTextCountsAsSet)
{
    PlixFieldTexts texts;
    texts.Set(PlixField::Position, "");
    EXPECT_EQ(texts.Get(PlixField::Position, "relative"), "");
}

TEST(PlixFieldTexts, HoldsTextsOfAnyLengthAndContent)
{
    const std::string zeros("a\0b\0", 4);
    const std::string text = std::string(100'000, 'x') + "\xF0\x9F\x98\x80";
    PlixFieldTexts texts;
    texts.Set(PlixField::Text, text);
    texts.Set(PlixField::Url, zeros);
    texts.Set(PlixField::Align, "");
    texts.Set(PlixField::Size, "md");
    EXPECT_EQ(texts.Get(PlixField::Text), text);
    EXPECT_EQ(texts.Get(PlixField::Url), zeros);
    EXPECT_EQ(texts.Get(PlixField::Align, "none"), "");
    EXPECT_EQ(texts.Get(PlixField::Size), "md");
}

TEST(PlixFieldTexts, TheLastTextOfAFieldCounts)
{
    PlixFieldTexts texts;
    texts.Set(PlixField::Margin, "md");
    texts.Set(PlixField::Color, "red");
    texts.Set(PlixField::Size, "sm");
    texts.Set(PlixField::Color, "#112233");
    texts.Set(PlixField::Margin, "");
    EXPECT_EQ(texts.Get(PlixField::Margin, "none"), "");
    EXPECT_EQ(texts.Get(PlixField::Color), "#112233");
    EXPECT_EQ(texts.Get(PlixField::Size), "sm");
}

TEST(PlixFieldTexts, ACopyIsIndependent)
{
    PlixFieldTexts texts;
    texts.Set(PlixField::Size, "sm");
    PlixFieldTexts copy = texts;
    copy.Set(PlixField::Size, "md");
    EXPECT_EQ(texts.Get(PlixField::Size), "sm");
    EXPECT_EQ(copy.Get(PlixField::Size), "md");
}

} // namespace
