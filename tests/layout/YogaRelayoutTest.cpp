// Items that change their own style while they are placed: the parent is laid out again,
// once.
#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <QGraphicsLayoutItem>

#include <memory>
#include <ostream>
#include <vector>

namespace plix::test {
namespace {

// Behaves like a text that needs another width than it was given: changes the width of its
// style each time it is placed, and requests a layout of its parent.
class Resizing : public LayoutNode, public QGraphicsLayoutItem {
public:
    explicit Resizing(double step = -1)
        : step_(step)
    {
        setGeometryTarget(this);
        setHasMeasureFunc(true);
        LayoutNode::setWidth(kWidth);
    }

    QSizeF measure(double width, YGMeasureMode, double, YGMeasureMode) override
    {
        ++measured;
        return {width, 1000 / width};
    }

    void setGeometry(const QRectF& rect) override
    {
        ++placed;
        last = rect;
        LayoutNode::setWidth(rect.width() + step_);
        YogaLayoutItem* const parent = parentItem();
        if (!parent)
            return;
        parent->setRelayoutPending();
        if (parent->isRelayoutPending()) {
            ++relayouts;
            parent->relayoutInPlace();
        }
    }

    QSizeF sizeHint(Qt::SizeHint, const QSizeF&) const override { return {}; }

    int measured = 0;
    int placed = 0;
    int relayouts = 0;
    QRectF last;

    static constexpr double kWidth = 50;

private:
    double step_;
};

// The calls of all items of a layout.
struct Calls {
    long measured = 0;
    long placed = 0;
    long relayouts = 0;
};

Calls callsOf(const std::vector<std::unique_ptr<Resizing>>& items)
{
    Calls calls;
    for (const auto& item : items) {
        calls.measured += item->measured;
        calls.placed += item->placed;
        calls.relayouts += item->relayouts;
    }
    return calls;
}

using Relayout = PlixTest;

TEST_F(Relayout, IsPendingAfterARequest)
{
    LayoutNode item;
    EXPECT_FALSE(item.isRelayoutPending());
    item.setRelayoutPending();
    EXPECT_TRUE(item.isRelayoutPending());
    item.relayoutInPlace();
    EXPECT_FALSE(item.isRelayoutPending());
}

TEST_F(Relayout, KeepsTheSizeOfTheSubtree)
{
    LayoutNode root;
    LayoutNode box;
    LayoutNode child;
    root.addChild(&box);
    box.addChild(&child);
    box.setHeightPercent(50);
    box.setMargins(10, 0, 0, 0);
    child.setHeight(10);
    root.calculateLayout(100, 80);
    ASSERT_EQ(box.geometry(), QRectF(10, 0, 90, 40));

    child.setHeight(30);
    box.relayoutInPlace();
    EXPECT_EQ(box.geometry().size(), QSizeF(90, 40));
    EXPECT_EQ(child.geometry().height(), 30);
}

TEST_F(Relayout, RestoresTheStyle)
{
    LayoutNode root;
    LayoutNode box;
    root.addChild(&box);
    box.setWidthPercent(60);
    box.setHeightAuto();
    root.calculateLayout(100, 80);
    box.relayoutInPlace();
    EXPECT_EQ(YGNodeStyleGetWidth(box.node()).unit, YGUnitPercent);
    EXPECT_EQ(YGNodeStyleGetWidth(box.node()).value, 60);
    EXPECT_EQ(YGNodeStyleGetHeight(box.node()).unit, YGUnitAuto);
    box.setWidth(33);
    box.setHeight(22);
    root.calculateLayout(100, 80);
    box.relayoutInPlace();
    EXPECT_EQ(YGNodeStyleGetWidth(box.node()).unit, YGUnitPoint);
    EXPECT_EQ(YGNodeStyleGetWidth(box.node()).value, 33);
    EXPECT_EQ(YGNodeStyleGetHeight(box.node()).value, 22);
}

TEST_F(Relayout, KeepsThePositionOfTheSubtree)
{
    LayoutNode root;
    LayoutNode above;
    LayoutNode box;
    above.setHeight(30);
    root.addChild(&above);
    root.addChild(&box);
    box.setMargins(10, 20, 0, 0);
    root.calculateLayout(100, 80);
    box.relayoutInPlace();
    EXPECT_EQ(box.geometry().topLeft(), QPointF(10, 50));
    above.setHeight(35);
    root.calculateLayout(100, 80);
    EXPECT_EQ(box.geometry().topLeft(), QPointF(10, 55)) << "until the next layout";
}

TEST_F(Relayout, KeepsTheDirectionOfTheCard)
{
    LayoutNode root;
    LayoutNode row;
    LayoutNode child;
    root.setLayoutDirection(Qt::RightToLeft);
    row.setOrientation(Qt::Horizontal);
    child.setWidth(30);
    root.addChild(&row);
    row.addChild(&child);
    root.calculateLayout(100, 80);
    ASSERT_EQ(child.geometry().left(), 70);
    child.setWidth(40);
    row.relayoutInPlace();
    EXPECT_EQ(child.geometry().left(), 60);
}

// Changes its width the first time that it is measured.
class NarrowingItem : public LayoutNode {
public:
    NarrowingItem()
    {
        setHasMeasureFunc(true);
        LayoutNode::setWidth(80);
    }

    QSizeF measure(double width, YGMeasureMode, double, YGMeasureMode) override
    {
        if (width > 40)
            LayoutNode::setWidth(40);
        return {width, 10};
    }
};

TEST_F(Relayout, IsNotNeededForStylesThatChangeWhileTheyAreMeasured)
{
    LayoutNode root;
    LayoutNode outer;
    LayoutNode inner;
    NarrowingItem item;
    root.addChild(&outer);
    outer.addChild(&inner);
    inner.addChild(&item);
    root.calculateLayout(100, 80);
    root.calculateLayout(100, 80);
    EXPECT_EQ(item.layoutWidth(), 40);
}

TEST_F(Relayout, OfNestedBoxesIsKeptByTheNextLayouts)
{
    // Two boxes that are laid out again, one inside the other.
    LayoutNode root;
    LayoutNode outer;
    LayoutNode inner;
    NarrowingItem item;
    outer.setMargins(0, 7, 0, 0);
    inner.setMargins(0, 5, 0, 0);
    root.addChild(&outer);
    outer.addChild(&inner);
    inner.addChild(&item);
    for (int round = 0; round < 3; ++round) {
        root.calculateLayout(100, 80);
        inner.relayoutInPlace();
        outer.relayoutInPlace();
        inner.relayoutInPlace();
        EXPECT_EQ(inner.geometry().top(), 5);
        EXPECT_EQ(outer.geometry().top(), 7);
    }
    root.calculateLayout(100, 80);
    EXPECT_EQ(inner.geometry().top(), 5);
    EXPECT_EQ(outer.geometry().top(), 7);
}

TEST_F(Relayout, PlacesSiblingsAgain)
{
    LayoutNode root;
    LayoutNode row;
    row.setOrientation(Qt::Horizontal);
    Resizing first(0);
    Resizing second(-10);
    Resizing third(0);
    root.addChild(&row);
    for (Resizing* child : {&first, &second, &third})
        row.addChild(child);
    root.calculateLayout(200, 100);
    root.applyLayoutRecursive();
    for (const Resizing* child : {&first, &second, &third})
        EXPECT_EQ(child->last, child->YogaLayoutItem::geometry());
}

TEST_F(Relayout, HappensOncePerPassHoweverOftenItIsRequested)
{
    LayoutNode root;
    LayoutNode row;
    row.setOrientation(Qt::Horizontal);
    root.addChild(&row);
    std::vector<std::unique_ptr<Resizing>> children;
    for (int i = 0; i < 10; ++i) {
        children.push_back(std::make_unique<Resizing>());
        row.addChild(children.back().get());
    }
    root.calculateLayout(1000, 100);
    root.applyLayoutRecursive();
    EXPECT_EQ(callsOf(children).relayouts, 1);
    EXPECT_EQ(callsOf(children).placed, 20);

    root.calculateLayout(1000, 100);
    root.applyLayoutRecursive();
    EXPECT_EQ(callsOf(children).relayouts, 2) << "once more in the next pass";
    EXPECT_EQ(callsOf(children).placed, 40);
}

TEST_F(Relayout, StartsFromTheOriginalWidthInEachPass)
{
    LayoutNode root;
    LayoutNode row;
    row.setOrientation(Qt::Horizontal);
    LayoutNode first;
    LayoutNode second;
    root.addChild(&row);
    row.addChild(&first);
    row.addChild(&second);
    for (const bool isPercent : {false, true}) {
        isPercent ? first.setWidthPercent(60) : first.setWidth(60);
        second.setWidth(10);
        root.calculateLayout(100, 50);
        first.changeWidth(20);
        row.relayoutInPlace();
        EXPECT_EQ(first.layoutWidth(), 20);
        EXPECT_EQ(second.geometry().left(), 20);
        root.calculateLayout(100, 50);
        EXPECT_EQ(first.layoutWidth(), 60);
        EXPECT_EQ(second.geometry().left(), 60);
    }
}

TEST_F(Relayout, DoesNotRestoreAWidthThatWasSetMeanwhile)
{
    LayoutNode root;
    LayoutNode child;
    root.addChild(&child);
    child.setWidth(60);
    root.calculateLayout(100, 50);
    child.changeWidth(20);
    child.setWidth(30);
    root.calculateLayout(100, 50);
    EXPECT_EQ(child.layoutWidth(), 30);
}

TEST_F(Relayout, AppliesAMeasuredWidthOnlyToAnItemThatIsWider)
{
    LayoutNode root;
    LayoutNode wide;
    LayoutNode narrow;
    root.addChild(&wide);
    root.addChild(&narrow);
    wide.setWidth(60);
    narrow.setWidth(20);
    root.calculateLayout(100, 50);
    wide.changeWidthOnRelayout(40);
    narrow.changeWidthOnRelayout(40);
    root.relayoutInPlace();
    EXPECT_EQ(wide.layoutWidth(), 40);
    EXPECT_EQ(narrow.layoutWidth(), 20);
}

TEST_F(Relayout, HappensInAtMostFourNestedBoxes)
{
    LayoutNode root;
    LayoutNode card;
    root.addChild(&card);
    std::vector<std::unique_ptr<LayoutNode>> boxes;
    std::vector<std::unique_ptr<LayoutNode>> items;
    YogaLayoutItem* parent = &card;
    for (int level = 0; level < 10; ++level) {
        items.push_back(std::make_unique<LayoutNode>());
        items.back()->setWidth(50);
        parent->addChild(items.back().get());
        boxes.push_back(std::make_unique<LayoutNode>());
        parent->addChild(boxes.back().get());
        parent = boxes.back().get();
    }
    root.calculateLayout(100, 100);
    for (const auto& item : items)
        item->changeWidthOnRelayout(10);
    root.applyLayoutRecursive();
    for (std::size_t level = 0; level < items.size(); ++level)
        EXPECT_EQ(items[level]->layoutWidth(), level < 4 ? 10 : 50) << level;
}

// ----- Changes

TEST_F(Relayout, IsNeededAfterAChangeOfAnyItem)
{
    LayoutNode root;
    LayoutNode box;
    auto child = std::make_unique<LayoutNode>();
    root.addChild(&box);
    box.addChild(child.get());
    EXPECT_TRUE(root.hasChanged());
    root.forgetChanges();
    EXPECT_FALSE(root.hasChanged());

    child->setHeight(10);
    EXPECT_TRUE(root.hasChanged());
    root.forgetChanges();
    child->setHasMeasureFunc(true);
    root.forgetChanges();
    child->markDirty();
    EXPECT_TRUE(root.hasChanged());
    root.forgetChanges();
    child.reset();
    EXPECT_TRUE(root.hasChanged()) << "an item was deleted";
}

TEST_F(Relayout, DoesNotCountAsAChange)
{
    LayoutNode root;
    LayoutNode box;
    LayoutNode child;
    root.addChild(&box);
    box.addChild(&child);
    root.calculateLayout(100, 50);
    root.forgetChanges();
    child.changeWidth(20);
    box.relayoutInPlace();
    root.calculateLayout(100, 50);
    EXPECT_FALSE(root.hasChanged());
}

struct TreeRow {
    const char* name;
    int depth;
    int width;

    friend std::ostream& operator<<(std::ostream& out, const TreeRow& row)
    {
        return out << row.name;
    }
};

class RelayoutTree : public PlixTest, public testing::WithParamInterface<TreeRow> { };

TEST_P(RelayoutTree, NeedsAFewCallsPerItem)
{
    // Nested boxes, with `width` resizing items before the inner one.
    LayoutNode root;
    std::vector<std::unique_ptr<LayoutNode>> boxes;
    std::vector<std::unique_ptr<Resizing>> items;
    LayoutNode* parent = &root;
    for (int level = 0; level < GetParam().depth; ++level) {
        boxes.push_back(std::make_unique<LayoutNode>());
        parent->addChild(boxes.back().get());
        parent = boxes.back().get();
        for (int i = 0; i < GetParam().width; ++i) {
            items.push_back(std::make_unique<Resizing>());
            parent->addChild(items.back().get());
        }
    }
    root.calculateLayout(300, 500);
    root.applyLayoutRecursive();
    root.calculateLayout();
    root.applyLayoutRecursive();

    // There are two passes. Each places an item once, and once more for each box around it
    // that is laid out again. Relayouts do not nest.
    const long count = static_cast<long>(items.size());
    const Calls calls = callsOf(items);
    EXPECT_LE(calls.relayouts, 2 * GetParam().depth);
    EXPECT_LE(calls.placed, 2 * count * (1 + GetParam().depth));
    EXPECT_GE(calls.placed, 2 * count);
}

INSTANTIATE_TEST_SUITE_P(Trees, RelayoutTree,
                         testing::Values(TreeRow {"Wide", 1, 2000}, TreeRow {"Deep", 60, 1},
                                         TreeRow {"DeepAndWide", 30, 10}),
                         RowName());

} // namespace
} // namespace plix::test
