// Equal fonts of different items are one font, which finds its engines once.
#include <kestro_control/TextItem.h>

#include <gtest/gtest.h>

namespace {

QFont sans(int pixels)
{
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(pixels);
    return font;
}

TEST(SharedFont, IsThatOfAnItemWithAnEqualOne)
{
    TextItem first;
    TextItem second;
    first.setFont(sans(31));
    second.setFont(sans(31));
    EXPECT_TRUE(second.font().isCopyOf(first.font()));
}

TEST(SharedFont, IsNeverOneThatDiffers)
{
    TextItem plain;
    plain.setFont(sans(31));
    QFont underlined = sans(31);
    underlined.setUnderline(true);
    QFont bold = sans(31);
    bold.setBold(true);
    for (const QFont& font : {underlined, bold, sans(30)}) {
        TextItem item;
        item.setFont(font);
        EXPECT_EQ(item.font(), font);
        EXPECT_EQ(item.font().resolve(), font.resolve());
    }
}

TEST(SharedFont, IsForgottenAfterManyOthers)
{
    const QFont font = sans(31);
    TextItem first;
    first.setFont(font);
    for (int pixels = 100; pixels < 120; ++pixels) {
        TextItem other;
        other.setFont(sans(pixels));
    }
    TextItem second;
    second.setFont(sans(31));
    EXPECT_EQ(second.font(), font);
    EXPECT_FALSE(second.font().isCopyOf(first.font()));
}

} // namespace
