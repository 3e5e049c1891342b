// Links between layout items, their layout, and what happens when an item is deleted.
#include "support/LayoutNode.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <QGraphicsLayoutItem>

#include <cmath>
#include <memory>
#include <ostream>
#include <vector>

namespace plix::test {
namespace {

constexpr char kAddChildLine[] = "call YogaLayoutItem::AddChild failed.- ";

// Records the rectangles that it is given.
class Target : public QGraphicsLayoutItem {
public:
    void setGeometry(const QRectF& rect) override { rects.push_back(rect); }
    QSizeF sizeHint(Qt::SizeHint, const QSizeF&) const override { return {}; }

    std::vector<QRectF> rects;
};

using LayoutTree = PlixTest;

TEST_F(LayoutTree, FindsChildrenAndParents)
{
    LayoutNode parent;
    LayoutNode first;
    LayoutNode second;
    parent.addChild(&first);
    parent.addChild(&second);
    EXPECT_EQ(parent.childCount(), 2);
    EXPECT_EQ(parent.childAt(0), &first);
    EXPECT_EQ(parent.childAt(1), &second);
    EXPECT_EQ(parent.childAt(2), nullptr);
    EXPECT_EQ(parent.childAt(-1), nullptr);
}

TEST_F(LayoutTree, DoesNotFindARootAsAParent)
{
    LayoutNode root;
    LayoutNode child;
    LayoutNode grandchild;
    root.addChild(&child);
    child.addChild(&grandchild);
    EXPECT_EQ(child.parentItem(), nullptr);
    EXPECT_EQ(grandchild.parentItem(), &child);
}

struct IndexRow {
    const char* name;
    int index;
    int expected;

    friend std::ostream& operator<<(std::ostream& out, const IndexRow& row)
    {
        return out << row.name;
    }
};

class InsertedChild : public PlixTest, public testing::WithParamInterface<IndexRow> { };

TEST_P(InsertedChild, GoesToItsIndexClampedToTheRange)
{
    LayoutNode parent;
    LayoutNode children[2];
    for (LayoutNode& child : children)
        parent.addChild(&child);
    LayoutNode inserted;
    parent.insertChild(&inserted, GetParam().index);
    EXPECT_EQ(parent.childCount(), 3);
    EXPECT_EQ(parent.childAt(GetParam().expected), &inserted);
}

INSTANTIATE_TEST_SUITE_P(Indices, InsertedChild,
                         testing::Values(IndexRow {"First", 0, 0}, IndexRow {"Middle", 1, 1},
                                         IndexRow {"End", 2, 2}, IndexRow {"BeyondTheEnd", 99, 2},
                                         IndexRow {"Negative", -5, 0}),
                         RowName());

TEST_F(LayoutTree, LogsThatANullChildCannotBeAdded)
{
    LayoutNode parent;
    parent.addChild(nullptr);
    EXPECT_EQ(parent.childCount(), 0);
    EXPECT_EQ(takeLogLine().rfind(kAddChildLine, 0), 0u);
}

TEST_F(LayoutTree, DoesNotMoveAChildToAnotherParent)
{
    LayoutNode first;
    LayoutNode second;
    LayoutNode child;
    first.addChild(&child);
    second.addChild(&child);
    const std::string line = takeLogLine();
    EXPECT_EQ(line.rfind(kAddChildLine, 0), 0u);
    EXPECT_GT(line.size(), sizeof kAddChildLine - 1) << "the reason is logged";
    EXPECT_EQ(first.childAt(0), &child);
    EXPECT_EQ(second.childCount(), 0);
}

TEST_F(LayoutTree, DoesNotAddAChildTwice)
{
    LayoutNode parent;
    LayoutNode child;
    parent.addChild(&child);
    parent.addChild(&child);
    EXPECT_EQ(takeLogLine().rfind(kAddChildLine, 0), 0u);
    EXPECT_EQ(parent.childCount(), 1);
}

TEST_F(LayoutTree, DoesNotAddAnItemToItself)
{
    LayoutNode item;
    item.addChild(&item);
    EXPECT_EQ(takeLogLine().rfind(kAddChildLine, 0), 0u);
    EXPECT_EQ(item.childCount(), 0);
    EXPECT_EQ(YGNodeGetParent(item.node()), nullptr);
}

TEST_F(LayoutTree, DoesNotAddAnAncestor)
{
    LayoutNode root;
    LayoutNode child;
    LayoutNode grandchild;
    root.addChild(&child);
    child.addChild(&grandchild);
    grandchild.addChild(&root);
    EXPECT_EQ(takeLogLine().rfind(kAddChildLine, 0), 0u);
    EXPECT_EQ(grandchild.childCount(), 0);
    EXPECT_EQ(YGNodeGetParent(root.node()), nullptr);
}

TEST_F(LayoutTree, DoesNotAddToAMeasuredItem)
{
    LayoutNode text;
    text.setHasMeasureFunc(true);
    LayoutNode child;
    text.addChild(&child);
    EXPECT_EQ(takeLogLine().rfind(kAddChildLine, 0), 0u);
    EXPECT_EQ(text.childCount(), 0);
    EXPECT_EQ(child.parentItem(), nullptr);
}

TEST_F(LayoutTree, RefusesInsertionsWithoutALogLine)
{
    LayoutNode parent;
    LayoutNode child;
    parent.addChild(&child);
    EXPECT_NO_THROW(parent.insertChild(nullptr, 0));
    EXPECT_NO_THROW(parent.insertChild(&parent, 0));
    EXPECT_NO_THROW(parent.insertChild(&child, 0));
    EXPECT_NO_THROW(child.insertChild(&parent, 0));
    EXPECT_EQ(parent.childCount(), 1);
    EXPECT_EQ(child.childCount(), 0);
}

TEST_F(LayoutTree, RefusesMeasuringAnItemWithChildren)
{
    LayoutNode parent;
    LayoutNode child;
    parent.addChild(&child);
    EXPECT_NO_THROW(parent.setHasMeasureFunc(true));
    EXPECT_FALSE(YGNodeHasMeasureFunc(parent.node()));
}

TEST_F(LayoutTree, PreventsYogaFromPrinting)
{
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    {
        YogaLayoutItem root(true);
        YogaLayoutItem parent(false);
        YogaLayoutItem child(false);
        root.addChild(&parent);
        parent.addChild(&child);
        root.addChild(&child);
        parent.setHasMeasureFunc(true);
        root.setHasMeasureFunc(true);
        root.reset();
        parent.reset();
        child.markDirty();
        child.setHasMeasureFunc(true);
        YogaLayoutItem other(false);
        child.addChild(&other);
        root.calculateLayout(100, 100);
    }
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    ignoreLog();
}

TEST_F(LayoutTree, DoesNotChangeTheLoggerOfAHostsNodes)
{
    const YogaLayoutItem item(false);
    YGNodeRef parent = YGNodeNew();
    YGNodeRef child = YGNodeNew();
    YGNodeInsertChild(parent, child, 0);
    testing::internal::CaptureStderr();
    EXPECT_ANY_THROW(YGNodeInsertChild(parent, child, 1));
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    YGNodeFreeRecursive(parent);
}

TEST_F(LayoutTree, LaysChildrenOutInAColumn)
{
    LayoutNode root;
    LayoutNode first;
    LayoutNode second;
    for (LayoutNode* child : {&first, &second}) {
        child->setHeight(20);
        root.addChild(child);
    }
    second.setMargins(0, 5, 0, 0);
    root.setPadding(3);
    root.calculateLayout(100, YGUndefined);
    EXPECT_EQ(root.geometry(), QRectF(0, 0, 100, 51));
    EXPECT_EQ(first.geometry(), QRectF(3, 3, 94, 20));
    EXPECT_EQ(second.geometry(), QRectF(3, 28, 94, 20));
    EXPECT_EQ(second.layoutWidth(), 94);
    EXPECT_EQ(second.layoutHeight(), 20);
}

TEST_F(LayoutTree, LetsTheSizeFollowTheContentWithoutBounds)
{
    LayoutNode root;
    LayoutNode child;
    child.setWidth(30);
    child.setHeight(20);
    root.addChild(&child);
    root.calculateLayout();
    EXPECT_EQ(root.geometry(), QRectF(0, 0, 30, 20));
}

TEST_F(LayoutTree, HasItsOwnDirection)
{
    LayoutNode root;
    root.setOrientation(Qt::Horizontal);
    LayoutNode child;
    child.setWidth(30);
    root.addChild(&child);
    root.setLayoutDirection(Qt::RightToLeft);
    root.calculateLayout(100, 50);
    EXPECT_EQ(child.geometry().left(), 70);
    root.setLayoutDirection(Qt::LeftToRight);
    root.calculateLayout(100, 50);
    EXPECT_EQ(child.geometry().left(), 0);
}

TEST_F(LayoutTree, LimitsWidthsToAPercentageOfTheParent)
{
    LayoutNode root;
    LayoutNode child;
    child.setWidth(500);
    child.setMaxWidthPercent(50);
    root.addChild(&child);
    root.calculateLayout(100, 100);
    EXPECT_EQ(child.layoutWidth(), 50);
}

TEST_F(LayoutTree, PassesTheRectanglesToTheTargets)
{
    LayoutNode root;
    LayoutNode child;
    LayoutNode grandchild;
    Target targets[2];
    child.setGeometryTarget(&targets[0]);
    grandchild.setGeometryTarget(&targets[1]);
    child.setPadding(4);
    grandchild.setHeight(10);
    root.addChild(&child);
    child.addChild(&grandchild);
    root.calculateLayout(50, YGUndefined);

    child.applyLayout();
    ASSERT_EQ(targets[0].rects.size(), 1u);
    EXPECT_EQ(targets[0].rects[0], QRectF(0, 0, 50, 18));
    EXPECT_TRUE(targets[1].rects.empty()) << "one item only";

    root.applyLayoutRecursive();
    ASSERT_EQ(targets[0].rects.size(), 2u);
    ASSERT_EQ(targets[1].rects.size(), 1u);
    EXPECT_EQ(targets[1].rects[0], QRectF(4, 4, 42, 10));
}

TEST_F(LayoutTree, PlacesNothingBeforeTheFirstLayout)
{
    LayoutNode item;
    Target target;
    item.setGeometryTarget(&target);
    EXPECT_TRUE(std::isnan(item.layoutWidth()));
    item.applyLayout();
    item.relayoutInPlace();
    EXPECT_TRUE(target.rects.empty());
}

TEST_F(LayoutTree, SkipsNodesThatAreNotItems)
{
    LayoutNode root;
    const YGNodeRef otherNode = YGNodeNew();
    YGNodeInsertChild(root.node(), otherNode, 0);
    LayoutNode child;
    Target target;
    child.setGeometryTarget(&target);
    root.addChild(&child);
    root.calculateLayout(50, 50);
    EXPECT_EQ(root.childAt(0), nullptr);
    root.applyPaddingToAbsoluteChildren();
    root.applyLayoutRecursive();
    EXPECT_EQ(target.rects.size(), 1u);
    YGNodeRemoveChild(root.node(), otherNode);
    YGNodeFree(otherNode);
}

class AbsoluteChild : public PlixTest {
protected:
    AbsoluteChild()
    {
        parent_.setPaddings(1, 2, 3, 4);
        child_.setAbsolute(true);
        parent_.addChild(&child_);
    }

    LayoutNode parent_;
    LayoutNode child_;
};

TEST_F(AbsoluteChild, IsInsideThePaddingsOfItsParent)
{
    parent_.applyPaddingToAbsoluteChildren();
    EXPECT_EQ(child_.positionStart(), 1);
    EXPECT_EQ(child_.positionTop(), 2);
    EXPECT_EQ(child_.positionEnd(), 3);
    EXPECT_EQ(child_.positionBottom(), 4);
    parent_.calculateLayout(100, 50);
    EXPECT_EQ(child_.geometry(), QRectF(1, 2, 96, 44));
}

TEST_F(AbsoluteChild, KeepsOffsetsOfItsOwn)
{
    child_.setPositionStart(10);
    child_.setPositionBottom(0);
    parent_.applyPaddingToAbsoluteChildren();
    EXPECT_EQ(child_.positionStart(), 10);
    EXPECT_EQ(child_.positionTop(), 2);
    EXPECT_EQ(child_.positionEnd(), 3);
    EXPECT_EQ(child_.positionBottom(), 0);
}

TEST_F(AbsoluteChild, GetsNoOffsetFromAPaddingOfZero)
{
    parent_.setPaddings(0, 0, 0, 0);
    parent_.applyPaddingToAbsoluteChildren();
    EXPECT_EQ(child_.positionStart(), -1);
    EXPECT_EQ(child_.positionTop(), -1);
    EXPECT_EQ(child_.positionEnd(), -1);
    EXPECT_EQ(child_.positionBottom(), -1);
}

TEST_F(AbsoluteChild, IsTheOnlyKindOfChildThatIsInset)
{
    child_.setAbsolute(false);
    parent_.applyPaddingToAbsoluteChildren();
    EXPECT_EQ(child_.positionStart(), -1);
    EXPECT_EQ(child_.positionTop(), -1);
}

using LayoutTreeEnd = PlixTest;

TEST_F(LayoutTreeEnd, ReleasesTheChildrenWhenTheParentIsDeletedFirst)
{
    LayoutNode child;
    LayoutNode grandchild;
    child.addChild(&grandchild);
    {
        LayoutNode parent;
        parent.addChild(&child);
        parent.calculateLayout(10, 10);
    }
    EXPECT_EQ(child.parentItem(), nullptr);
    EXPECT_EQ(child.childAt(0), &grandchild);
    LayoutNode next;
    next.addChild(&child);
    EXPECT_EQ(next.childAt(0), &child) << "free for another parent";
}

TEST_F(LayoutTreeEnd, RemovesAChildThatIsDeletedFirst)
{
    LayoutNode parent;
    auto first = std::make_unique<LayoutNode>();
    LayoutNode second;
    parent.addChild(first.get());
    parent.addChild(&second);
    first.reset();
    EXPECT_EQ(parent.childCount(), 1);
    EXPECT_EQ(parent.childAt(0), &second);
    parent.calculateLayout(10, 10);
    parent.applyLayoutRecursive();
}

TEST_F(LayoutTreeEnd, ForgetsTheItemOfADeletedNode)
{
    // The allocator reuses the addresses of nodes, so an entry that was not removed would be
    // found.
    for (int i = 0; i < 50; ++i) {
        LayoutNode parent;
        {
            LayoutNode child;
            parent.addChild(&child);
        }
        const YGNodeRef otherNode = YGNodeNew();
        YGNodeInsertChild(parent.node(), otherNode, 0);
        EXPECT_EQ(parent.childAt(0), nullptr);
        YGNodeRemoveChild(parent.node(), otherNode);
        YGNodeFree(otherNode);
    }
}

} // namespace
} // namespace plix::test
