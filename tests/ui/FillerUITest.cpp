// Empty space that fills the free space.
#include "ui/PlixFillerUI.h"

#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <ostream>

namespace plix::test {
namespace {

struct FillerRow {
    const char* name;
    const char* layout;
    const char* properties;
    int grow;
    float width; // of the style; -1: not set
    float height;

    friend std::ostream& operator<<(std::ostream& out, const FillerRow& row)
    {
        return out << row.name;
    }
};

float points(const YGValue& value)
{
    return value.unit == YGUnitPoint ? value.value : -1;
}

class FillerStyle : public PlixTest, public testing::WithParamInterface<FillerRow> { };

TEST_P(FillerStyle, IsAStripAcrossTheBox)
{
    const TestCard card(
        bubbleWithBody(box(GetParam().layout, component("filler", GetParam().properties))));
    auto* filler = card.ui<PlixFillerUI>({0, 0});
    EXPECT_EQ(filler->growFactor(), GetParam().grow);
    const YGNodeRef node = nodeOf(*filler);
    EXPECT_EQ(points(YGNodeStyleGetWidth(node)), GetParam().width);
    EXPECT_EQ(points(YGNodeStyleGetHeight(node)), GetParam().height);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, FillerStyle,
    testing::Values(
        FillerRow {"CollapsesInAColumn", "vertical", "", 0, 5, 1},
        FillerRow {"GrowsInAColumnWithFlex", "vertical", R"("flex": 2,)", 2, 5, -1},
        FillerRow {"CollapsesInAColumnWithFlexZero", "vertical", R"("flex": 0,)", 0, 5, 1},
        FillerRow {"GrowsInAColumnWithFlexOne", "vertical", R"("flex": 1,)", 1, 5, -1},
        FillerRow {"GrowsInARow", "horizontal", "", 1, -1, 5},
        FillerRow {"GrowsInARowWithFlex", "horizontal", R"("flex": 3,)", 3, -1, 5},
        FillerRow {"CollapsesInARowWithFlexZero", "horizontal", R"("flex": 0,)", 0, 1, 5},
        FillerRow {"OnlyGrowsInABaselineRow", "baseline", "", 1, -1, -1},
        FillerRow {"OnlyCollapsesInABaselineRow", "baseline", R"("flex": 0,)", 0, -1, -1}),
    RowName());

using Filler = PlixTest;

TEST_F(Filler, DoesNotCollapseAtANegativeFlex)
{
    const std::string filler = component("filler", R"("flex": -1,)");
    const TestCard column(bubbleWithBody(box("vertical", filler)));
    const YGNodeRef inColumn = nodeOf(*column.ui<PlixFillerUI>({0, 0}));
    EXPECT_EQ(points(YGNodeStyleGetWidth(inColumn)), 5);
    EXPECT_EQ(points(YGNodeStyleGetHeight(inColumn)), -1);
    const TestCard row(bubbleWithBody(box("horizontal", filler)));
    const YGNodeRef inRow = nodeOf(*row.ui<PlixFillerUI>({0, 0}));
    EXPECT_EQ(points(YGNodeStyleGetWidth(inRow)), -1);
    EXPECT_EQ(points(YGNodeStyleGetHeight(inRow)), 5);
}

TEST_F(Filler, PushesWhatFollowsToTheEnd)
{
    const std::string block =
        box("vertical", "", R"("flex": 0, "width": "50px", "height": "20px",)");
    const TestCard row(bubbleWithBody(box(
        "horizontal", block + "," + component("filler") + "," + block, R"("paddingAll": "0px",)")));
    EXPECT_EQ(row.ui<PlixFillerUI>({0, 1})->size(), QSizeF(200, 5));
    EXPECT_EQ(row.item({0, 2})->pos().x(), 250);

    const TestCard column(bubbleWithBody(
        box("vertical", block + "," + component("filler", R"("flex": 1,)") + "," + block,
            R"("paddingAll": "0px", "height": "200px",)")));
    EXPECT_EQ(column.ui<PlixFillerUI>({0, 1})->size(), QSizeF(5, 160));
    EXPECT_EQ(column.item({0, 2})->pos().y(), 180);
}

TEST_F(Filler, GrowsAsTheTopItemOfAZone)
{
    const TestCard card(R"({"type": "bubble", "hero": {"type": "filler"}})");
    EXPECT_EQ(card.ui<PlixFillerUI>({0})->growFactor(), 1);
}

} // namespace
} // namespace plix::test
