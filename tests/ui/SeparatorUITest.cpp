// Lines between the items of a box.
#include "ui/PlixSeparatorUI.h"

#include "support/Picture.h"
#include "support/PlixTest.h"
#include "support/RowName.h"
#include "ui/PlixBoxUI.h"

#include <ostream>

namespace plix::test {
namespace {

const QColor kBackground(0xF1, 0xF3, 0xF7);

// A zone without insets, with a separator between two blocks of 30 pixels.
std::string card(const std::string& layout, const std::string& properties,
                 const std::string& before = "30px")
{
    const auto block = [](const std::string& size) {
        return box("vertical", "",
                   R"("flex": 0, "width": ")" + size + R"(", "height": ")" + size + "\",");
    };
    return R"({"type": "bubble", "hero": )"
        + box(layout,
              block(before) + "," + component("separator", properties) + "," + block("30px"))
        + "}";
}

using Separator = PlixTest;

TEST_F(Separator, IsOnePixelHighAcrossAColumn)
{
    const TestCard shown(card("vertical", ""));
    EXPECT_EQ(shown.ui<PlixSeparatorUI>({0, 1})->YogaLayoutItem::geometry(), QRectF(0, 30, 300, 1));
}

TEST_F(Separator, IsOnePixelWideAcrossARow)
{
    for (const char* layout : {"horizontal", "diagonal"}) {
        // A box of an unknown layout is a column, but its separators are those of a row.
        const TestCard shown(card(layout, ""));
        YGUnit unit = YGUnitUndefined;
        const auto* line = shown.ui<PlixSeparatorUI>({0, 1});
        if (std::string(layout) == "horizontal") {
            EXPECT_EQ(line->YogaLayoutItem::geometry(), QRectF(30, 0, 1, 30));
        }
        EXPECT_EQ(line->styleWidth(unit), 1);
    }
}

struct ColorRow {
    const char* name;
    const char* properties;
    QColor color;

    friend std::ostream& operator<<(std::ostream& out, const ColorRow& row)
    {
        return out << row.name;
    }
};

class SeparatorColor : public PlixTest, public testing::WithParamInterface<ColorRow> { };

TEST_P(SeparatorColor, FillsTheLine)
{
    const TestCard shown(card("vertical", GetParam().properties));
    const Picture picture(*shown.root());
    for (const double x : {0.0, 150.0, 299.0})
        EXPECT_EQ(picture.at({x, 30}), GetParam().color);
    EXPECT_EQ(picture.at({150, 29}), kBackground);
    EXPECT_EQ(picture.at({150, 31}), kBackground);
}

// 0x222222 with an alpha of 26 over the background.
int mixed(int background)
{
    return (0x22 * 26 + background * (255 - 26)) / 255;
}

INSTANTIATE_TEST_SUITE_P(
    Words, SeparatorColor,
    testing::Values(ColorRow {"Given", R"("color": "#FF0000",)", QColor(Qt::red)},
                    ColorRow {"Invalid", R"("color": "none",)", QColor(Qt::black)}),
    RowName());

TEST_F(Separator, IsAFaintGreyByDefault)
{
    for (const char* properties : {"", R"("color": "",)"}) {
        const TestCard shown(card("vertical", properties));
        const QColor line = Picture(*shown.root()).at({150, 30});
        EXPECT_NEAR(line.red(), mixed(0xF1), 1);
        EXPECT_NEAR(line.green(), mixed(0xF3), 1);
        EXPECT_NEAR(line.blue(), mixed(0xF7), 1);
    }
}

TEST_F(Separator, IsGreyUntilAColorIsSet)
{
    PlixSeparatorUI line(nullptr);
    line.resize(10, 10);
    EXPECT_EQ(Picture(line).at({5, 5}), QColor(Qt::gray));
    line.setColor("");
    EXPECT_EQ(Picture(line).at({5, 5}), QColor(Qt::gray));
    line.setColor("#00FF00");
    EXPECT_EQ(Picture(line).at({5, 5}), QColor(Qt::green));
    line.setColor("");
    EXPECT_EQ(Picture(line).at({5, 5}), QColor(Qt::green));
}

TEST_F(Separator, KeepsItsMarginOnTheLeadingEdge)
{
    const std::string margin = R"("margin": "md",)";
    const TestCard column(card("vertical", margin));
    EXPECT_EQ(column.ui<PlixSeparatorUI>({0, 1})->marginTop(), 8);
    EXPECT_EQ(column.ui<PlixSeparatorUI>({0, 1})->marginLeft(), 0);
    EXPECT_TRUE(column.ui<PlixSeparatorUI>({0, 1})->hasMargin());
    EXPECT_EQ(column.ui<PlixSeparatorUI>({0, 1})->pos().y(), 38);
    const TestCard row(card("horizontal", margin));
    EXPECT_EQ(row.ui<PlixSeparatorUI>({0, 1})->marginTop(), 0);
    EXPECT_EQ(row.ui<PlixSeparatorUI>({0, 1})->marginLeft(), 8);
}

TEST_F(Separator, HasNoMarginAsTheFirstItemOfItsBox)
{
    const TestCard shown(
        bubbleWithBody(box("vertical", component("separator", R"("margin": "md",)"))));
    EXPECT_EQ(shown.ui<PlixSeparatorUI>({0, 0})->marginTop(), 0);
    EXPECT_FALSE(shown.ui<PlixSeparatorUI>({0, 0})->hasMargin());
}

TEST_F(Separator, DoesNotGrow)
{
    const TestCard shown(card("horizontal", R"("flex": 3,)"));
    EXPECT_EQ(shown.ui<PlixSeparatorUI>({0, 1})->growFactor(), 0);
}

TEST_F(Separator, IsHorizontalAsTheTopItemOfAZone)
{
    const TestCard shown(R"({"type": "bubble", "hero": {"type": "separator"}})");
    EXPECT_EQ(shown.ui<PlixSeparatorUI>({0})->size(), QSizeF(300, 1));
}

} // namespace
} // namespace plix::test
