// Conversions of the words of a card to pixels and colours.
#include "layout/PlixStyleValues.h"
#include "model/PlixDataBubble.h"

#include "support/RowName.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>

namespace {

// A text and the value that a conversion returns for it.
template <typename Value> struct Row {
    const char* name;
    std::string text;
    Value value;

    friend std::ostream& operator<<(std::ostream& out, const Row& row) { return out << row.name; }
};

using PixelRow = Row<int>;

class LengthPixels : public testing::TestWithParam<PixelRow> { };

TEST_P(LengthPixels, AreReadFromTheText)
{
    EXPECT_EQ(plix::ToLengthPixels(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Words, LengthPixels,
    testing::Values(PixelRow {"Xs", "xs", 2}, PixelRow {"Sm", "sm", 4}, PixelRow {"Md", "md", 8},
                    PixelRow {"Lg", "lg", 12}, PixelRow {"Xl", "xl", 16},
                    PixelRow {"Xxl", "xxl", 20}, PixelRow {"NoneIsNoWord", "none", 0},
                    PixelRow {"OtherCaseIsNoWord", "XXL", 0},
                    PixelRow {"LeadingBlankIsNoWord", " md", 0},
                    PixelRow {"TrailingBlankIsNoWord", "md ", 0},
                    PixelRow {"NulAfterTheWordIsNoWord", std::string("md\0", 3), 0}),
    plix::test::RowName());

INSTANTIATE_TEST_SUITE_P(
    Numbers, LengthPixels,
    testing::Values(PixelRow {"Empty", "", 0}, PixelRow {"WithUnit", "20px", 20},
                    PixelRow {"UpperCaseUnit", "12PX", 12}, PixelRow {"MixedCaseUnit", "12Px", 12},
                    PixelRow {"WithoutUnit", "20", 20}, PixelRow {"UnitTwice", "1px2px", 12},
                    PixelRow {"Fraction", "12.5px", 0}, PixelRow {"Negative", "-4px", -4},
                    PixelRow {"Percentage", "50%", 0}, PixelRow {"OnlyUnit", "px", 0},
                    PixelRow {"BlanksAround", " 7 ", 7}, PixelRow {"TooLarge", "99999999999", 0},
                    PixelRow {"Largest", "2147483647px", 2147483647},
                    PixelRow {"Hexadecimal", "0x10", 0},
                    PixelRow {"BrokenUtf8",
                              "\xff\xfe"
                              "9px",
                              0}),
    plix::test::RowName());

class Percent : public testing::TestWithParam<PixelRow> { };

TEST_P(Percent, IsTheWholeNumberBeforeTheSign)
{
    EXPECT_EQ(plix::ToPercent(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, Percent,
                         testing::Values(PixelRow {"WithSign", "25%", 25},
                                         PixelRow {"WithoutSign", "25", 25},
                                         PixelRow {"Fraction", "50.5%", 0},
                                         PixelRow {"Negative", "-5%", -5},
                                         PixelRow {"Pixels", "5px", 0}, PixelRow {"Empty", "", 0}),
                         plix::test::RowName());

using LengthRow = Row<PlixLength>;

class ParsedLength : public testing::TestWithParam<LengthRow> { };

TEST_P(ParsedLength, IsPixelsOrAPercentage)
{
    PlixLength length;
    plix::ParseLength(GetParam().text, length);
    EXPECT_EQ(length.px, GetParam().value.px);
    EXPECT_EQ(length.percent, GetParam().value.percent);
}

INSTANTIATE_TEST_SUITE_P(Texts, ParsedLength,
                         testing::Values(LengthRow {"EmptyIsNotGiven", "", {-1, 0}},
                                         LengthRow {"Percentage", "50%", {0, 50}},
                                         LengthRow {"FractionalPercentage", "50.5%", {0, 0}},
                                         LengthRow {"NegativePercentage", "-20%", {0, -20}},
                                         LengthRow {"Word", "md", {8, 0}},
                                         LengthRow {"Pixels", "30px", {30, 0}},
                                         LengthRow {"NegativePixelsAreKept", "-4px", {-4, 0}},
                                         LengthRow {"BareZero", "0", {0, 0}},
                                         LengthRow {"Garbage", "wide", {0, 0}}),
                         plix::test::RowName());

TEST(ParseLength, KeepsAnEarlierPercentageWhenTheNewTextIsInPixels)
{
    PlixLength length;
    plix::ParseLength("40%", length);
    plix::ParseLength("30px", length);
    EXPECT_EQ(length.px, 30);
    EXPECT_EQ(length.percent, 40);
}

TEST(ParseLength, ResetsTheLengthForAnEmptyText)
{
    PlixLength length;
    plix::ParseLength("40%", length);
    plix::ParseLength("", length);
    EXPECT_EQ(length.px, -1);
    EXPECT_EQ(length.percent, 0);
}

class Spacing : public testing::TestWithParam<PixelRow> { };

TEST_P(Spacing, IsAWord)
{
    EXPECT_EQ(plix::ToSpacingPixels(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, Spacing,
                         testing::Values(PixelRow {"Xs", "xs", 2}, PixelRow {"Sm", "sm", 4},
                                         PixelRow {"Md", "md", 8}, PixelRow {"Lg", "lg", 12},
                                         PixelRow {"Xl", "xl", 16}, PixelRow {"Xxl", "xxl", 20},
                                         PixelRow {"PixelsAreZero", "8px", 0},
                                         PixelRow {"NumbersAreZero", "8", 0},
                                         PixelRow {"Empty", "", 0},
                                         PixelRow {"OtherCase", "MD", 0}),
                         plix::test::RowName());

class SpacerSize : public testing::TestWithParam<PixelRow> { };

TEST_P(SpacerSize, IsAWordOrMedium)
{
    EXPECT_EQ(plix::ToSpacerPixels(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, SpacerSize,
                         testing::Values(PixelRow {"Xs", "xs", 2}, PixelRow {"Sm", "sm", 4},
                                         PixelRow {"Md", "md", 8}, PixelRow {"Lg", "lg", 12},
                                         PixelRow {"Xl", "xl", 16}, PixelRow {"Xxl", "xxl", 20},
                                         PixelRow {"Empty", "", 8},
                                         PixelRow {"UnknownWord", "huge", 8},
                                         PixelRow {"Pixels", "30px", 8}),
                         plix::test::RowName());

class CornerRadius : public testing::TestWithParam<PixelRow> { };

TEST_P(CornerRadius, HasATableOfItsOwn)
{
    EXPECT_EQ(plix::ToCornerRadius(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CornerRadius,
    testing::Values(PixelRow {"EmptyIsNotGiven", "", -1}, PixelRow {"Xs", "xs", 1},
                    PixelRow {"Sm", "sm", 2}, PixelRow {"Md", "md", 3}, PixelRow {"Lg", "lg", 4},
                    PixelRow {"Xl", "xl", 5}, PixelRow {"Xxl", "xxl", 6},
                    PixelRow {"Pixels", "20px", 20}, PixelRow {"UpperCaseUnit", "20PX", 20},
                    PixelRow {"Number", "7", 7}, PixelRow {"None", "none", 0},
                    PixelRow {"OtherCase", "XL", 0}, PixelRow {"Negative", "-3px", -3}),
    plix::test::RowName());

class BorderWidth : public testing::TestWithParam<PixelRow> { };

TEST_P(BorderWidth, HasATableOfItsOwn)
{
    EXPECT_EQ(plix::ToBorderWidth(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, BorderWidth,
    testing::Values(PixelRow {"EmptyIsNotGiven", "", -1}, PixelRow {"Light", "light", 1},
                    PixelRow {"Normal", "normal", 2}, PixelRow {"Medium", "medium", 3},
                    PixelRow {"Semibold", "semibold", 4}, PixelRow {"Bold", "bold", 5},
                    PixelRow {"None", "none", 0}, PixelRow {"Pixels", "9px", 9},
                    PixelRow {"UpperCaseUnit", "9Px", 9}, PixelRow {"LengthWord", "md", 0},
                    PixelRow {"OtherCase", "Bold", 0}),
    plix::test::RowName());

using ImageRow = Row<float>;

class ImageSize : public testing::TestWithParam<ImageRow> { };

TEST_P(ImageSize, IsAWordOrMedium)
{
    EXPECT_EQ(plix::ToImageSize(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ImageSize,
    testing::Values(ImageRow {"Xxs", "xxs", 40}, ImageRow {"Xs", "xs", 60},
                    ImageRow {"Sm", "sm", 80}, ImageRow {"Md", "md", 100},
                    ImageRow {"Lg", "lg", 120}, ImageRow {"Xl", "xl", 140},
                    ImageRow {"Xxl", "xxl", 160}, ImageRow {"ThreeXl", "3xl", 180},
                    ImageRow {"FourXl", "4xl", 200}, ImageRow {"FiveXl", "5xl", 220},
                    ImageRow {"FullIsASpecialValue", "full", -2}, ImageRow {"Empty", "", 100},
                    ImageRow {"Pixels", "70px", 100}, ImageRow {"OtherCase", "XL", 100}),
    plix::test::RowName());

class BubbleWidth : public testing::TestWithParam<ImageRow> { };

TEST_P(BubbleWidth, FollowsTheSizeWord)
{
    PlixDataBubble bubble;
    bubble.SetSize(GetParam().text);
    EXPECT_EQ(bubble.GetWidth(), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, BubbleWidth,
                         testing::Values(ImageRow {"Nano", "nano", 120},
                                         ImageRow {"Giga", "giga", 500},
                                         ImageRow {"UnknownWord", "tiny", 300},
                                         ImageRow {"Empty", "", 300}),
                         plix::test::RowName());

using ColorRow = Row<QColor>;

class Color : public testing::TestWithParam<ColorRow> { };

TEST_P(Color, FollowsQtsSyntax)
{
    const QColor color = plix::ToColor(GetParam().text);
    EXPECT_EQ(color.isValid(), GetParam().value.isValid());
    EXPECT_EQ(color.rgba(), GetParam().value.rgba());
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Color,
    testing::Values(ColorRow {"ThreeDigits", "#1aF", QColor(0x11, 0xAA, 0xFF)},
                    ColorRow {"SixDigits", "#222222", QColor(0x22, 0x22, 0x22, 255)},
                    ColorRow {"EightDigitsAreArgb", "#1A222222", QColor(0x22, 0x22, 0x22, 26)},
                    ColorRow {"LowerCase", "#a0bfcd", QColor(0xA0, 0xBF, 0xCD)},
                    ColorRow {"SixDigitsWithASign", "#-12345", QColor()},
                    ColorRow {"EightDigitsWithAPrefix", "#0x123456", QColor()},
                    ColorRow {"SevenDigits", "#1234567", QColor()},
                    ColorRow {"NineDigits", "#111222333", QColor(0x11, 0x22, 0x33)},
                    ColorRow {"TwelveDigits", "#111122223333", QColor(0x11, 0x22, 0x33)},
                    ColorRow {"Name", "red", QColor(255, 0, 0)},
                    ColorRow {"UnknownName", "reddish", QColor()},
                    ColorRow {"WithoutHash", "222222", QColor()},
                    ColorRow {"FiveDigits", "#22222", QColor()},
                    ColorRow {"NoHexDigit", "#22222G", QColor()}, ColorRow {"Empty", "", QColor()},
                    ColorRow {"BrokenUtf8", "#\xff\xfe", QColor()}),
    plix::test::RowName());

using AlphaRow = Row<std::string>;

class RgbaToArgb : public testing::TestWithParam<AlphaRow> { };

TEST_P(RgbaToArgb, MovesTheLastTwoOfEightDigits)
{
    EXPECT_EQ(plix::RgbaToArgb(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, RgbaToArgb,
                         testing::Values(AlphaRow {"EightDigits", "#11223344", "#44112233"},
                                         AlphaRow {"SixDigits", "#112233", "#112233"},
                                         AlphaRow {"Name", "red", "red"},
                                         AlphaRow {"NineLetters", "chocolate", "#tehocola"},
                                         AlphaRow {"Empty", "", ""}),
                         plix::test::RowName());

} // namespace
