// How a box and its children are laid out.
#include "ui/PlixBoxUI.h"

#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <QCursor>

#include <ostream>

namespace plix::test {
namespace {

constexpr char kThreeTexts[] = R"({"type": "text", "text": "one"}, {"type": "text", "text": "two"},
                                  {"type": "text", "text": "three"})";

// A card with a box inside a box, and the node of the inner one.
class BoxInBox : public TestCard {
public:
    explicit BoxInBox(const std::string& inner, const std::string& outerLayout = "vertical")
        : TestCard(bubbleWithBody(box(outerLayout, inner)))
    {
    }

    PlixBoxUI& inner() const { return *ui<PlixBoxUI>({0, 0}); }
    YGNodeRef node() const { return nodeOf(inner()); }
};

struct DirectionRow {
    const char* name;
    const char* layout;
    Qt::Orientation orientation;
    YGAlign alignItems;

    friend std::ostream& operator<<(std::ostream& out, const DirectionRow& row)
    {
        return out << row.name;
    }
};

class BoxDirection : public PlixTest, public testing::WithParamInterface<DirectionRow> { };

TEST_P(BoxDirection, FollowsTheLayoutWord)
{
    const BoxInBox card(box(GetParam().layout, kThreeTexts));
    EXPECT_EQ(card.inner().orientation(), GetParam().orientation);
    EXPECT_EQ(YGNodeStyleGetAlignItems(card.node()), GetParam().alignItems);
}

INSTANTIATE_TEST_SUITE_P(
    Words, BoxDirection,
    testing::Values(DirectionRow {"Vertical", "vertical", Qt::Vertical, YGAlignStretch},
                    DirectionRow {"Horizontal", "horizontal", Qt::Horizontal, YGAlignStretch},
                    DirectionRow {"Baseline", "baseline", Qt::Horizontal, YGAlignBaseline},
                    DirectionRow {"Empty", "", Qt::Vertical, YGAlignStretch},
                    DirectionRow {"OtherCase", "Horizontal", Qt::Vertical, YGAlignStretch}),
    RowName());

struct SpacingRow {
    const char* name;
    const char* layout;
    const char* spacing;
    float top;
    float left;

    friend std::ostream& operator<<(std::ostream& out, const SpacingRow& row)
    {
        return out << row.name;
    }
};

class BoxSpacing : public PlixTest, public testing::WithParamInterface<SpacingRow> { };

TEST_P(BoxSpacing, IsALeadingMarginOfEachChildButTheFirst)
{
    const std::string spacing = std::string(R"("spacing": ")") + GetParam().spacing + "\",";
    const BoxInBox card(box(GetParam().layout, kThreeTexts, spacing));
    for (int i = 0; i < 3; ++i) {
        const YogaLayoutItem* child = card.inner().childAt(i);
        EXPECT_EQ(child->marginTop(), i == 0 ? 0 : GetParam().top);
        EXPECT_EQ(child->marginLeft(), i == 0 ? 0 : GetParam().left);
        EXPECT_EQ(child->marginBottom(), 0);
        EXPECT_FALSE(child->hasMargin());
    }
    EXPECT_EQ(YGNodeStyleGetGap(card.node(), YGGutterAll).unit, YGUnitUndefined);
}

INSTANTIATE_TEST_SUITE_P(Boxes, BoxSpacing,
                         testing::Values(SpacingRow {"Vertical", "vertical", "md", 8, 0},
                                         SpacingRow {"Horizontal", "horizontal", "md", 0, 8},
                                         SpacingRow {"Baseline", "baseline", "xxl", 0, 20},
                                         SpacingRow {"PixelsAddNothing", "vertical", "8px", 0, 0},
                                         SpacingRow {"NoneAddsNothing", "horizontal", "none", 0,
                                                     0}),
                         RowName());

using Box = PlixTest;

TEST_F(Box, DoesNotReplaceMarginsOfItsChildren)
{
    for (const char* layout : {"vertical", "horizontal"}) {
        const BoxInBox card(
            box(layout, text("one") + "," + text("two", R"("margin": "xl",)") + "," + text("three"),
                R"("spacing": "md",)"));
        const bool column = card.inner().orientation() == Qt::Vertical;
        const YogaLayoutItem* second = card.inner().childAt(1);
        const YogaLayoutItem* third = card.inner().childAt(2);
        EXPECT_EQ(column ? second->marginTop() : second->marginLeft(), 16);
        EXPECT_EQ(column ? third->marginTop() : third->marginLeft(), 8);
    }
}

TEST_F(Box, DoesNotReplaceAMarginOfZeroByItsSpacing)
{
    const BoxInBox card(box("vertical", text("one") + "," + text("two", R"("margin": "none",)"),
                            R"("spacing": "md",)"));
    EXPECT_EQ(card.inner().childAt(1)->marginTop(), 0);
}

TEST_F(Box, SeparatesItsChildrenByItsSpacing)
{
    const BoxInBox column(box("vertical", kThreeTexts, R"("spacing": "lg",)"));
    const BoxInBox row(box("horizontal", kThreeTexts, R"("spacing": "lg",)"));
    for (int i = 1; i < 3; ++i) {
        const QRectF above = column.inner().childAt(i - 1)->geometry();
        const QRectF below = column.inner().childAt(i)->geometry();
        EXPECT_EQ(below.top(), above.bottom() + 12);
        const QRectF before = row.inner().childAt(i - 1)->geometry();
        const QRectF after = row.inner().childAt(i)->geometry();
        EXPECT_NEAR(after.left(), before.right() + 12, 1) << "texts keep their fractions";
    }
}

TEST_F(Box, StretchesChildrenWithoutAWidthInAColumn)
{
    const BoxInBox card(box("vertical",
                            box("vertical", "") + "," + component("separator") + ","
                                + box("vertical", "", R"("width": "40px",)") + ","
                                + box("vertical", "", R"("width": "50%",)")));
    YGUnit unit = YGUnitUndefined;
    EXPECT_EQ(card.inner().childAt(0)->styleWidth(unit), 100);
    EXPECT_EQ(unit, YGUnitPercent);
    EXPECT_EQ(card.inner().childAt(1)->styleWidth(unit), 100);
    EXPECT_EQ(unit, YGUnitPercent);
    EXPECT_EQ(card.inner().childAt(2)->styleWidth(unit), 40);
    EXPECT_EQ(unit, YGUnitPoint);
    EXPECT_EQ(card.inner().childAt(3)->styleWidth(unit), 50);
    EXPECT_EQ(unit, YGUnitPercent);
    const double inner = card.inner().layoutWidth();
    EXPECT_EQ(card.inner().childAt(0)->layoutWidth(), inner);
    EXPECT_EQ(card.inner().childAt(2)->layoutWidth(), 40);
    EXPECT_EQ(card.inner().childAt(3)->layoutWidth(), inner / 2);
}

TEST_F(Box, StretchesAMeasuredChildWithoutAWidthToTheFullWidth)
{
    PlixBoxUI column(nullptr);
    LayoutNode picture;
    picture.setHasMeasureFunc(true);
    column.addChild(&picture);
    YGUnit unit = YGUnitUndefined;
    EXPECT_EQ(picture.styleWidth(unit), 100);
    EXPECT_EQ(unit, YGUnitPercent);
}

TEST_F(Box, IgnoresANullChild)
{
    PlixBoxUI column(nullptr);
    column.addChild(nullptr);
    EXPECT_EQ(column.childCount(), 0);
}

TEST_F(Box, AlignsARowInABaselineRowOnTheBaselines)
{
    const std::string texts =
        text("low", R"("size": "xxs",)") + "," + text("high", R"("size": "xxl",)");
    const BoxInBox card(box("horizontal", texts), "baseline");
    EXPECT_EQ(YGNodeStyleGetAlignItems(card.node()), YGAlignBaseline);
    EXPECT_GT(card.inner().childAt(0)->geometry().top(), card.inner().childAt(1)->geometry().top());
    for (const char* outer : {"vertical", "horizontal"}) {
        const BoxInBox other(box("horizontal", texts), outer);
        EXPECT_EQ(YGNodeStyleGetAlignItems(other.node()), YGAlignStretch) << outer;
    }
}

struct GrowRow {
    const char* name;
    const char* layout; // of the box itself
    const char* properties;
    int grow;
    YGUnit widthUnit;
    float width;

    friend std::ostream& operator<<(std::ostream& out, const GrowRow& row)
    {
        return out << row.name;
    }
};

class GrowingBox : public PlixTest, public testing::WithParamInterface<GrowRow> { };

TEST_P(GrowingBox, SharesTheFreeSpaceOfARow)
{
    const BoxInBox card(box(GetParam().layout, text("a"), GetParam().properties), "horizontal");
    EXPECT_EQ(card.inner().growFactor(), GetParam().grow);
    YGUnit unit = YGUnitUndefined;
    const float width = card.inner().styleWidth(unit);
    EXPECT_EQ(unit, GetParam().widthUnit);
    if (unit == YGUnitPoint || unit == YGUnitPercent) {
        EXPECT_EQ(width, GetParam().width);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, GrowingBox,
    testing::Values(
        GrowRow {"RowHasABasisOfZero", "horizontal", R"("flex": 1,)", 1, YGUnitPoint, 0},
        GrowRow {"BaselineRowHasABasisOfZero", "baseline", R"("flex": 2,)", 2, YGUnitPoint, 0},
        GrowRow {"RowGrowsByDefaultInARow", "horizontal", "", 1, YGUnitPoint, 0},
        GrowRow {"RowThatDoesNotGrowKeepsItsWidth", "horizontal", R"("flex": 0,)", 0, YGUnitAuto,
                 0},
        GrowRow {"ColumnKeepsAnAutomaticWidth", "vertical", R"("flex": 1,)", 1, YGUnitAuto, 0},
        GrowRow {"RowWithAWidthDoesNotGrow", "horizontal", R"("flex": 1, "width": "50px",)", 0,
                 YGUnitPoint, 50},
        GrowRow {"ColumnWithAWidthStillGrows", "vertical", R"("flex": 1, "width": "50px",)", 1,
                 YGUnitPoint, 50},
        GrowRow {"ColumnWithAHeightDoesNotGrow", "vertical", R"("flex": 1, "height": "50px",)", 0,
                 YGUnitAuto, 0},
        GrowRow {"RowWithAHeightStillGrows", "horizontal", R"("flex": 1, "height": "50px",)", 1,
                 YGUnitPoint, 0},
        GrowRow {"RowWithAWidthOfZeroGrows", "horizontal", R"("flex": 1, "width": "0",)", 1,
                 YGUnitPoint, 0},
        GrowRow {"AbsoluteRowKeepsItsWidth", "horizontal", R"("flex": 1, "position": "absolute",)",
                 1, YGUnitAuto, 0},
        GrowRow {"RowWithAPercentageKeepsItAndGrows", "horizontal", R"("flex": 1, "width": "30%",)",
                 1, YGUnitPercent, 30}),
    RowName());

TEST_F(Box, HasAnAutomaticWidthAnywhereInAnAbsoluteBox)
{
    const std::string row = box("horizontal", text("a"), R"("flex": 1,)");
    const std::string absolute = R"("position": "absolute",)";
    YGUnit unit = YGUnitUndefined;
    const BoxInBox child(box("horizontal", row, absolute));
    child.ui<PlixBoxUI>({0, 0, 0})->styleWidth(unit);
    EXPECT_EQ(unit, YGUnitAuto);
    const BoxInBox below(box("horizontal", box("horizontal", row), absolute));
    below.ui<PlixBoxUI>({0, 0, 0, 0})->styleWidth(unit);
    EXPECT_EQ(unit, YGUnitAuto);
}

TEST_F(Box, DoesNotGrowByDefaultInAColumn)
{
    EXPECT_EQ(BoxInBox(box("vertical", text("a"))).inner().growFactor(), 0);
    EXPECT_EQ(BoxInBox(box("vertical", text("a"), R"("flex": 3,)")).inner().growFactor(), 3);
}

TEST_F(Box, SharesARowBetweenGrowingBoxesWhateverTheyHold)
{
    const TestCard card(
        bubbleWithBody(box("horizontal",
                           box("horizontal", text("a rather long text"), R"("flex": 1,)") + ","
                               + box("horizontal", text("b"), R"("flex": 1,)"),
                           R"("paddingAll": "0px",)")));
    EXPECT_EQ(card.ui<PlixBoxUI>({0, 0})->layoutWidth(), 150);
    EXPECT_EQ(card.ui<PlixBoxUI>({0, 1})->layoutWidth(), 150);
}

TEST_F(Box, HasTheSizeOfTheCard)
{
    const BoxInBox pixels(box("vertical", "", R"("width": "70px", "height": "30px",)"));
    EXPECT_EQ(pixels.inner().size(), QSizeF(70, 30));
    const BoxInBox percent(box("vertical",
                               box("vertical", "", R"("width": "25%", "height": "50%",)"),
                               R"("width": "200px", "height": "60px",)"));
    EXPECT_EQ(percent.ui<PlixBoxUI>({0, 0, 0})->size(), QSizeF(50, 30));
    EXPECT_TRUE(percent.ui<PlixBoxUI>({0, 0, 0})->widthIsPercent());
    EXPECT_FALSE(percent.inner().widthIsPercent());
}

TEST_F(Box, MayHaveAHeightOfZero)
{
    for (const char* height : {"0", "0px"}) {
        const std::string member = std::string(R"("height": ")") + height + "\",";
        const BoxInBox card(box("vertical", text("a"), member));
        EXPECT_EQ(card.inner().size().height(), 0) << height;
        EXPECT_EQ(YGNodeStyleGetHeight(card.node()).unit, YGUnitPoint) << height;
    }
}

TEST_F(Box, IgnoresNegativeSizes)
{
    const BoxInBox card(box("vertical", text("a"), R"("width": "-70px", "height": "-30px",)"));
    EXPECT_GT(card.inner().size().width(), 0);
    EXPECT_GT(card.inner().size().height(), 0);
}

// ----- Paddings

struct PaddingRow {
    const char* name;
    std::string properties;
    float left;
    float top;
    float right;
    float bottom;

    friend std::ostream& operator<<(std::ostream& out, const PaddingRow& row)
    {
        return out << row.name;
    }
};

class BoxPadding : public PlixTest, public testing::WithParamInterface<PaddingRow> { };

TEST_P(BoxPadding, IsBetweenTheContentAndTheEdges)
{
    const BoxInBox card(box("vertical", text("a"), GetParam().properties));
    EXPECT_EQ(card.inner().paddingLeft(), GetParam().left);
    EXPECT_EQ(card.inner().paddingTop(), GetParam().top);
    EXPECT_EQ(card.inner().paddingRight(), GetParam().right);
    EXPECT_EQ(card.inner().paddingBottom(), GetParam().bottom);
    EXPECT_EQ(card.inner().childAt(0)->geometry().topLeft(),
              QPointF(GetParam().left, GetParam().top));
}

constexpr char kLightBorder[] = R"("borderWidth": "light", "borderColor": "#FF0000",)";

std::string withLightBorder(const std::string& properties = {})
{
    return kLightBorder + properties;
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, BoxPadding,
    testing::Values(
        PaddingRow {"None", "", 0, 0, 0, 0},
        PaddingRow {"All", R"("paddingAll": "md",)", 8, 8, 8, 8},
        PaddingRow {"Edges",
                    R"("paddingStart": "1px", "paddingTop": "2px", "paddingEnd": "3px",
                       "paddingBottom": "4px",)",
                    1, 2, 3, 4},
        PaddingRow {"EdgesBeforeAll", R"("paddingAll": "10px", "paddingTop": "2px",)", 10, 2, 10,
                    10},
        PaddingRow {"BorderAloneIsAPadding", withLightBorder(), 1, 1, 1, 1},
        PaddingRow {"BorderWidensEdges", withLightBorder(R"("paddingTop": "2px",)"), 1, 3, 1, 1},
        PaddingRow {"BorderDoesNotWidenAll", withLightBorder(R"("paddingAll": "10px",)"), 10, 10,
                    10, 10},
        PaddingRow {"BorderWidensEdgesNextToAll",
                    withLightBorder(R"("paddingAll": "10px", "paddingEnd": "3px",)"), 10, 10, 4,
                    10},
        PaddingRow {"BoldBorder", R"("borderWidth": "bold", "borderColor": "#FF0000",)", 5, 5, 5,
                    5},
        PaddingRow {"NoBorderWithoutAColour", R"("borderWidth": "bold",)", 0, 0, 0, 0},
        PaddingRow {"NoBorderWithoutAWidth", R"("borderColor": "#FF0000",)", 0, 0, 0, 0},
        PaddingRow {"NoBorderOfWidthNone", R"("borderWidth": "none", "borderColor": "#FF0000",)", 0,
                    0, 0, 0}),
    RowName());

struct PercentPaddingRow {
    const char* name;
    const char* key;
    YGEdge edge;

    friend std::ostream& operator<<(std::ostream& out, const PercentPaddingRow& row)
    {
        return out << row.name;
    }
};

class PercentPadding : public PlixTest, public testing::WithParamInterface<PercentPaddingRow> { };

TEST_P(PercentPadding, IsResolvedByTheLayout)
{
    const BoxInBox card(
        box("vertical", text("a"), std::string("\"") + GetParam().key + R"(": "10%",)"));
    const YGValue value = YGNodeStyleGetPadding(card.node(), GetParam().edge);
    EXPECT_EQ(value.unit, YGUnitPercent);
    EXPECT_EQ(value.value, 10);
}

INSTANTIATE_TEST_SUITE_P(Keys, PercentPadding,
                         testing::Values(PercentPaddingRow {"All", "paddingAll", YGEdgeAll},
                                         PercentPaddingRow {"Top", "paddingTop", YGEdgeTop},
                                         PercentPaddingRow {"Bottom", "paddingBottom",
                                                            YGEdgeBottom},
                                         PercentPaddingRow {"Start", "paddingStart", YGEdgeLeft},
                                         PercentPaddingRow {"End", "paddingEnd", YGEdgeRight}),
                         RowName());

TEST_F(Box, InsetsAbsoluteChildrenByItsPaddings)
{
    const std::string child = box("vertical", "", R"("position": "absolute", "height": "10px",)");
    const std::string placed = box(
        "vertical", "",
        R"("position": "absolute", "height": "10px", "offsetTop": "30px", "offsetStart": "40px",)");
    const BoxInBox card(box("vertical", child + "," + placed,
                            R"("paddingStart": "6px", "paddingTop": "7px", "height": "90px",)"));
    EXPECT_EQ(card.inner().childAt(0)->geometry().topLeft(), QPointF(6, 7));
    EXPECT_EQ(card.inner().childAt(0)->positionStart(), 6);
    EXPECT_EQ(card.inner().childAt(0)->positionTop(), 7);
    EXPECT_EQ(card.inner().childAt(0)->positionEnd(), -1);
    EXPECT_EQ(card.inner().childAt(0)->positionBottom(), -1);
    EXPECT_EQ(card.inner().childAt(1)->geometry().topLeft(), QPointF(40, 30));
}

// ----- Calls of the children

class Child : public LayoutNode {
public:
    explicit Child(int highlightResult = -1)
        : highlightResult_(highlightResult)
    {
    }

    int setHighlightText(const QStringList& words) override
    {
        highlighted = words;
        return highlightResult_;
    }

    void setClickable(bool on) override { clickable = on; }
    void inheritCornerRadius(int radius) override { radii.push_back(radius); }

    QStringList highlighted;
    bool clickable = false;
    std::vector<int> radii;

private:
    int highlightResult_;
};

TEST_F(Box, HighlightsInEveryChild)
{
    PlixBoxUI column(nullptr);
    const QStringList words {QStringLiteral("word")};
    EXPECT_EQ(column.setHighlightText(words), -1);
    Child withWord(1);
    Child withoutWord(-1);
    Child withWordToo(0);
    column.addChild(&withoutWord);
    EXPECT_EQ(column.setHighlightText(words), -1);
    column.addChild(&withWord);
    column.addChild(&withWordToo);
    EXPECT_EQ(column.setHighlightText(words), 1);
    EXPECT_EQ(withWordToo.highlighted, words) << "also after a child that contains the word";
}

TEST_F(Box, MakesItsChildrenClickable)
{
    PlixBoxUI column(nullptr);
    Child child;
    column.addChild(&child);
    column.setClickable(false);
    EXPECT_FALSE(column.hasCursor());
    EXPECT_FALSE(child.clickable);
    column.setClickable(true);
    EXPECT_EQ(column.cursor().shape(), Qt::PointingHandCursor);
    EXPECT_TRUE(child.clickable);
    child.clickable = false;
    column.setClickable(false);
    EXPECT_EQ(column.cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(Box, MakesChildrenClickableThatAreAddedLater)
{
    const BoxInBox card(
        box("vertical", "", R"("action": {"type": "uri", "uri": "https://a.example"},)"));
    Child child;
    card.inner().addChild(&child);
    EXPECT_TRUE(child.clickable);
    EXPECT_EQ(card.inner().cursor().shape(), Qt::PointingHandCursor);
}

TEST_F(Box, PassesItsCornerRadiusOn)
{
    const BoxInBox card(box("vertical", box("vertical", ""), R"("cornerRadius": "9px",)"));
    Child child;
    card.inner().addChild(&child);
    EXPECT_EQ(child.radii, std::vector<int> {9});

    PlixBoxUI square(nullptr);
    Child other;
    square.addChild(&other);
    EXPECT_TRUE(other.radii.empty());
}

TEST_F(Box, KeepsTheLargerRadius)
{
    PlixBoxUI column(nullptr);
    column.inheritCornerRadius(9);
    column.inheritCornerRadius(4);
    Child child;
    column.addChild(&child);
    EXPECT_EQ(child.radii, std::vector<int> {9});
}

TEST_F(Box, ClipsItselfAndItsContent)
{
    const BoxInBox card(box("vertical", ""));
    EXPECT_TRUE(card.inner().flags().testFlag(QGraphicsItem::ItemClipsToShape));
    EXPECT_TRUE(card.inner().flags().testFlag(QGraphicsItem::ItemClipsChildrenToShape));
}

} // namespace
} // namespace plix::test
