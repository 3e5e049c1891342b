// Fixed empty space.
#include "ui/PlixSpacerUI.h"

#include "support/PlixTest.h"
#include "support/RowName.h"

#include <ostream>

namespace plix::test {
namespace {

struct SpacerRow {
    const char* name;
    const char* layout;
    const char* properties;
    double width; // -1: not checked
    double height;

    friend std::ostream& operator<<(std::ostream& out, const SpacerRow& row)
    {
        return out << row.name;
    }
};

class SpacerSize : public PlixTest, public testing::WithParamInterface<SpacerRow> { };

TEST_P(SpacerSize, IsAlongTheBox)
{
    const TestCard card(bubbleWithBody(
        box(GetParam().layout, text("a") + "," + component("spacer", GetParam().properties))));
    const QSizeF size = card.ui<PlixSpacerUI>({0, 1})->size();
    if (GetParam().width >= 0) {
        EXPECT_EQ(size.width(), GetParam().width);
    }
    if (GetParam().height >= 0) {
        EXPECT_EQ(size.height(), GetParam().height);
    }
    EXPECT_EQ(card.ui<PlixSpacerUI>({0, 1})->growFactor(), 0);
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, SpacerSize,
    testing::Values(SpacerRow {"DefaultInARow", "horizontal", "", 8, -1},
                    SpacerRow {"DefaultInAColumn", "vertical", "", -1, 8},
                    SpacerRow {"WordInAColumn", "vertical", R"("size": "xxl",)", -1, 20},
                    SpacerRow {"WordInARow", "horizontal", R"("size": "xs",)", 2, -1},
                    SpacerRow {"WordInABaselineRow", "baseline", R"("size": "lg",)", 12, -1},
                    SpacerRow {"UnknownWord", "vertical", R"("size": "huge",)", -1, 8},
                    SpacerRow {"Pixels", "vertical", R"("size": "30px",)", -1, 8}),
    RowName());

using Spacer = PlixTest;

TEST_F(Spacer, InAZoneHasAWidth)
{
    const TestCard card(R"({"type": "bubble", "hero": {"type": "spacer", "size": "xl"}})");
    YGUnit unit = YGUnitUndefined;
    EXPECT_EQ(card.ui<PlixSpacerUI>({0})->styleWidth(unit), 16);
}

} // namespace
} // namespace plix::test
