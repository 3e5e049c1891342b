// The callbacks that Yoga makes while it computes a layout.
#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <cmath>
#include <limits>
#include <ostream>
#include <stdexcept>
#include <vector>

namespace plix::test {
namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Returns a fixed size and records the calls.
class Measured : public LayoutNode {
public:
    explicit Measured(const QSizeF& size)
        : size_(size)
    {
        setHasMeasureFunc(true);
    }

    struct Call {
        double width;
        YGMeasureMode widthMode;
        double height;
        YGMeasureMode heightMode;
    };

    QSizeF measure(double width, YGMeasureMode widthMode, double height,
                   YGMeasureMode heightMode) override
    {
        calls.push_back({width, widthMode, height, heightMode});
        return size_;
    }

    std::vector<Call> calls;

private:
    QSizeF size_;
};

struct SizeRow {
    const char* name;
    QSizeF size;
    QSizeF expected;

    friend std::ostream& operator<<(std::ostream& out, const SizeRow& row)
    {
        return out << row.name;
    }
};

class MeasuredSize : public PlixTest, public testing::WithParamInterface<SizeRow> { };

TEST_P(MeasuredSize, IsAtLeastOne)
{
    LayoutNode root;
    root.setOrientation(Qt::Horizontal);
    YGNodeStyleSetAlignItems(root.node(), YGAlignFlexStart);
    Measured item(GetParam().size);
    root.addChild(&item);
    root.calculateLayout();
    EXPECT_EQ(item.geometry().size(), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Sizes, MeasuredSize,
                         testing::Values(SizeRow {"Ordinary", {30, 20}, {30, 20}},
                                         SizeRow {"Zero", {0, 0}, {1, 1}},
                                         SizeRow {"Negative", {-3, -4}, {1, 1}},
                                         SizeRow {"ZeroWidthOnly", {0, 20}, {1, 20}},
                                         SizeRow {"ZeroHeightOnly", {30, 0}, {30, 1}},
                                         SizeRow {"NotANumber", {kNan, kNan}, {1, 1}},
                                         SizeRow {"TooSmallForAFloat", {1e-60, 1e-60}, {1, 1}}),
                         RowName());

using LayoutCallbacks = PlixTest;

TEST_F(LayoutCallbacks, PassTheConstraintsOfYogaOn)
{
    LayoutNode root;
    Measured item({30, 20});
    root.addChild(&item);
    root.calculateLayout(80, 500);
    ASSERT_FALSE(item.calls.empty());
    EXPECT_EQ(item.calls.front().width, 80);
    EXPECT_EQ(item.calls.front().widthMode, YGMeasureModeExactly);

    item.calls.clear();
    item.markDirty();
    root.calculateLayout();
    ASSERT_FALSE(item.calls.empty());
    EXPECT_TRUE(std::isnan(item.calls.front().width));
    EXPECT_EQ(item.calls.front().widthMode, YGMeasureModeUndefined);
}

TEST_F(LayoutCallbacks, UseTheConstraintsForItemsThatDoNotMeasure)
{
    LayoutNode root;
    YogaLayoutItem item(false);
    item.setHasMeasureFunc(true);
    root.addChild(&item);
    root.calculateLayout(80, 40);
    EXPECT_EQ(item.geometry().width(), 80);
}

TEST_F(LayoutCallbacks, UseTheConstraintsForNodesThatAreNotChildren)
{
    Measured root({30, 20});
    root.calculateLayout(80, 40);
    EXPECT_TRUE(root.calls.empty());
    EXPECT_EQ(root.geometry(), QRectF(0, 0, 80, 40));
}

TEST_F(LayoutCallbacks, AreNotMadeWhenMeasuringIsOff)
{
    LayoutNode root;
    Measured item({30, 20});
    item.setHasMeasureFunc(false);
    root.addChild(&item);
    root.calculateLayout(80, YGUndefined);
    EXPECT_TRUE(item.calls.empty());
    EXPECT_EQ(item.geometry().height(), 0);
}

TEST_F(LayoutCallbacks, AreMadeAgainForADirtyItemOnly)
{
    LayoutNode root;
    Measured item({30, 20});
    root.addChild(&item);
    root.calculateLayout(80, 500);
    item.calls.clear();
    root.calculateLayout(80, 500);
    EXPECT_TRUE(item.calls.empty());
    item.markDirty();
    root.calculateLayout(80, 500);
    EXPECT_FALSE(item.calls.empty());
}

TEST_F(LayoutCallbacks, AreNeededToMarkAnItemAsDirty)
{
    LayoutNode root;
    LayoutNode child;
    root.addChild(&child);
    root.calculateLayout(80, 500);
    EXPECT_NO_THROW(child.markDirty());
    EXPECT_FALSE(YGNodeIsDirty(child.node()));
    EXPECT_NO_THROW(root.markDirty());
    EXPECT_FALSE(YGNodeIsDirty(root.node()));
}

class Thrower : public LayoutNode {
public:
    Thrower()
    {
        setHasMeasureFunc(true);
        setHasBaselineFunc(true);
    }

    QSizeF measure(double, YGMeasureMode, double, YGMeasureMode) override
    {
        throw std::runtime_error("no size");
    }

    float baseline(double, double) override { throw 42; }
};

TEST_F(LayoutCallbacks, CatchExceptionsOfTheItems)
{
    LayoutNode root;
    root.setOrientation(Qt::Horizontal);
    root.setAlignment(Qt::AlignBaseline, true);
    Thrower first;
    Thrower second;
    root.addChild(&first);
    root.addChild(&second);
    EXPECT_NO_THROW(root.calculateLayout(80, 40));
    EXPECT_NO_THROW(root.calculateLayout());
    EXPECT_EQ(first.geometry().size(), QSizeF(1, 1)) << "there was no constraint";
}

class Aligned : public Measured {
public:
    Aligned(const QSizeF& size, float baseline)
        : Measured(size)
        , baseline_(baseline)
    {
        setHasBaselineFunc(true);
    }

    float baseline(double, double) override { return baseline_; }

private:
    float baseline_;
};

TEST_F(LayoutCallbacks, AlignItemsOnTheirBaselines)
{
    LayoutNode row;
    row.setOrientation(Qt::Horizontal);
    row.setAlignment(Qt::AlignBaseline, true);
    Aligned small({10, 10}, 8);
    Aligned large({10, 40}, 30);
    row.addChild(&small);
    row.addChild(&large);
    row.calculateLayout(100, YGUndefined);
    EXPECT_EQ(small.geometry().top() + 8, large.geometry().top() + 30);
}

TEST_F(LayoutCallbacks, AlignItemsWithoutABaselineOnTheirBottoms)
{
    LayoutNode row;
    row.setOrientation(Qt::Horizontal);
    row.setAlignment(Qt::AlignBaseline, true);
    Aligned small({10, 10}, 2);
    small.setHasBaselineFunc(false);
    YogaLayoutItem bare(false);
    bare.setHasBaselineFunc(true);
    bare.setWidth(10);
    bare.setHeight(40);
    row.addChild(&small);
    row.addChild(&bare);
    row.calculateLayout(100, YGUndefined);
    EXPECT_EQ(small.geometry().bottom(), bare.geometry().bottom());
}

TEST_F(LayoutCallbacks, AcceptInfiniteAndHugeSizes)
{
    LayoutNode root;
    Measured item({kInfinity, 1e300});
    root.addChild(&item);
    EXPECT_NO_THROW(root.calculateLayout());
    EXPECT_NO_THROW(root.applyLayoutRecursive());
    root.calculateLayout(1e300, -1e300);
    root.calculateLayout(kInfinity, kNan);
    root.applyLayoutRecursive();
}

} // namespace
} // namespace plix::test
