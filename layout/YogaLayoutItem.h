#pragma once

#include "layout/PlixLink.h"
#include "layout/YogaLayoutPass.h"

#include <QMarginsF>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <Qt>

#include <yoga/Yoga.h>

class QGraphicsLayoutItem;

// Binds one Yoga node to one graphics item: sets the node's style, and hands the
// computed rectangle to the item's QGraphicsLayoutItem part.
//
// Two trees meet here: the Qt item tree owns the items, each item owns its own
// node, and the node tree owns nothing. Parents and children may be deleted in any
// order.
//
// Lengths are logical pixels. No operation throws. An item without a node does
// nothing and returns the default that is stated, -1 for lengths. Yoga reports NaN
// for a length that it has not computed yet. Numbers beyond kMaximumStyleNumber are
// reduced to it (PlixStyleNumber.h).
class YogaLayoutItem {
public:
    explicit YogaLayoutItem(bool useWebDefaults);
    virtual ~YogaLayoutItem();

    YogaLayoutItem(const YogaLayoutItem&) = delete;
    YogaLayoutItem& operator=(const YogaLayoutItem&) = delete;

    // For code that may outlive the item.
    PlixLink<YogaLayoutItem> watch() const { return linkTarget_.link(); }

    virtual void setOrientation(Qt::Orientation orientation);
    virtual Qt::Orientation orientation() const;
    // `qtAlignment` is one Qt::AlignmentFlag. What is set depends on `mainAxis`,
    // and the horizontal flags read it the other way round than the vertical ones:
    // callers pass "the parent is horizontal" for both and rely on that.
    virtual void setAlignment(int qtAlignment, bool mainAxis);
    virtual void setLayoutDirection(Qt::LayoutDirection direction);
    virtual Qt::LayoutDirection layoutDirection() const;

    virtual void setMargins(double left, double top, double right, double bottom);
    virtual void setMargin(double all);
    virtual void setMarginTop(double margin);
    virtual void setMarginLeft(double margin);
    virtual void setMarginBottom(double margin);
    virtual float marginTop() const;
    virtual float marginLeft() const;
    virtual float marginBottom() const;

    // A negative value leaves its edge as it is.
    virtual void setPaddings(double left, double top, double right, double bottom);
    virtual void setPadding(double all);
    // Whether a padding was set in pixels, on all edges or at the bottom. A zone's
    // insets must not replace it.
    virtual bool hasPadding() const;
    virtual void setPaddingLeftPercent(double percent);
    virtual void setPaddingRightPercent(double percent);
    virtual void setPaddingTopPercent(double percent);
    virtual void setPaddingBottomPercent(double percent);
    virtual void setPaddingPercent(double percent);
    virtual void setPaddingBottom(double padding);
    // The edge's own padding, else that of all edges, else 0.
    virtual float paddingBottom() const;
    virtual float paddingTop() const;
    virtual float paddingLeft() const;
    virtual float paddingRight() const;

    // Does not insert a null child, one that has a parent already, or an ancestor
    // of this item; addChild then logs why. An index out of range is clamped.
    virtual void insertChild(YogaLayoutItem* child, int index);
    virtual void addChild(YogaLayoutItem* child);

    virtual void setWidth(double width);
    virtual void setWidthAuto();
    virtual void setWidthPercent(double percent);
    virtual void setHeight(double height);
    virtual void setHeightPercent(double percent);
    virtual void setHeightAuto();
    virtual float styleWidth(YGUnit& unit) const;
    virtual float layoutWidth() const;
    virtual float styleHeight() const;
    virtual float layoutHeight() const;
    virtual void setBorder(double width);
    virtual float border() const;
    // A negative factor counts as 0: Yoga would give such an item a share.
    virtual void setGrowFactor(double factor);
    virtual int growFactor() const;

    // The size that the item's content needs. Yoga calls this if
    // setHasMeasureFunc is on. The base returns the size that it is offered.
    virtual QSizeF measure(double width, YGMeasureMode widthMode, double height,
                           YGMeasureMode heightMode);
    virtual float baseline(double width, double height);

    virtual void reset();
    virtual void setTextNode(bool isText);
    virtual void setAbsolute(bool absolute);
    virtual bool isAbsolute() const;
    // Places absolute children without offsets of their own inside this item's
    // padding.
    virtual void applyPaddingToAbsoluteChildren();

    virtual void setPositionStart(double position);
    virtual void setPositionEnd(double position);
    virtual void setPositionTop(double position);
    virtual void setPositionBottom(double position);
    // Sets the left edge in either reading direction. Its pixel form does not.
    virtual void setPositionStartPercent(double percent);
    virtual void setPositionEndPercent(double percent);
    virtual void setPositionTopPercent(double percent);
    virtual void setPositionBottomPercent(double percent);
    // -1 unless the offset was set in pixels.
    virtual float positionStart() const;
    virtual float positionEnd() const;
    virtual float positionTop() const;
    virtual float positionBottom() const;

    // 1 when the subtree shows one of the words, else -1.
    virtual int setHighlightText(const QStringList& words);

    // Whether the item has an explicit margin. The spacing of its box does not
    // replace that.
    virtual void setHasMargin(bool has);
    virtual bool hasMargin() const;

    virtual void applyLayout();
    // Only for items with a measure function; others follow their children.
    virtual void markDirty();
    virtual void setClickable(bool on);
    virtual void inheritCornerRadius(int radius);

    // Sets those offsets of an absolute item that are not set to the parent's
    // paddings.
    void insetInto(const YogaLayoutItem& parent);
    void setHasMeasureFunc(bool has);
    void setHasBaselineFunc(bool has);
    // The maximum width, as a percentage of the parent's.
    void setMaxWidthPercent(double percent);
    // 0 unless set: the item does not shrink.
    void setShrinkFactor(double factor);
    // Width divided by height. Yoga computes one from the other.
    void setAspectRatio(double ratio);

    void calculateLayout(double width, double height);
    void calculateLayout();
    // Places this item and all items below it. This tells the host, who may
    // delete any of them, or start another layout.
    void applyLayoutRecursive();

    // Set a width for the rest of this layout pass; YogaLayoutPass tells why and
    // how. The next pass starts from the style's own width again: columns would be
    // shared out in another way otherwise.
    //
    // The first one is for an item that is being placed. It marks the parent for a
    // relayout if the item is wider than `width`. The second one is for an item that
    // is being measured: its width waits for the relayout of the parent.
    void changeWidth(double width);
    void changeWidthOnRelayout(double width);

    // Marks the item for a relayout, unless it has had its relayout in this pass.
    void setRelayoutPending();
    bool isRelayoutPending() const { return pass_.relayout == Relayout::Pending; }
    // Clears the mark and calculates the layout of this subtree again, at the size
    // and position that the item has. Called by a child that is being placed.
    void relayoutInPlace();

    // Whether the style, the content or the items of this subtree have changed
    // since the last call of forgetChanges().
    bool hasChanged() const;
    void forgetChanges();
    // Makes the next layout of this subtree the same as that of a new card:
    // nothing counts as placed, and everything is measured again.
    void startOver();
    // Whether the item was placed since it was made or startOver() was called. Only
    // then may its children rely on its size.
    bool isPlaced() const { return isPlaced_; }

    // Null, 0 and null if there is none.
    YogaLayoutItem* childAt(int index) const;
    int childCount() const;
    YogaLayoutItem* parentItem() const;
    // The computed rectangle, relative to the parent's, and the paddings inside
    // it. Percentages are pixels here.
    QRectF geometry() const;
    QMarginsF layoutPaddings() const;

    void setGeometryTarget(QGraphicsLayoutItem* target) { geometryTarget_ = target; }
    QGraphicsLayoutItem* geometryTarget() const { return geometryTarget_; }
    void setWidthIsPercent(bool isPercent) { widthIsPercent_ = isPercent; }
    bool widthIsPercent() const { return widthIsPercent_; }

protected:
    // Takes over `node`, which may be null.
    explicit YogaLayoutItem(YGNodeRef node);

private:
    static YGSize MeasureCallback(YGNodeConstRef node, float width, YGMeasureMode widthMode,
                                  float height, YGMeasureMode heightMode);
    static float BaselineCallback(YGNodeConstRef node, float width, float height);

    static constexpr float kNoNode = -1;

    // The item of a node that is, or was, the child of another. Null for a root node,
    // for a node without an item, and for null.
    static YogaLayoutItem* ItemOf(YGNodeConstRef node);

    bool canInsert(const YogaLayoutItem* child) const;
    void insertNode(YogaLayoutItem* child, int index);
    float padding(YGEdge edge) const;
    float margin(YGEdge edge) const;
    float position(YGEdge edge, bool isSet) const;

    using Relayout = YogaLayoutPass::Relayout;
    using Round = YogaLayoutPass::Round;

    // Every operation that sets a style begins with this; false without a node.
    bool startChange();
    void place(Round round);
    void placeChildren(Round round);
    void startPass();
    void forgetKeptPositions();
    void calculateLayout(double width, double height, YGDirection direction);
    void calculateAtSize(double width, double height);
    // By more than what rounding adds.
    bool isWiderThan(double width) const;
    bool isWiderThanPending() const;
    bool hasChildWiderThanPending() const;
    void applyPendingWidth();
    int relayoutsAbove() const;
    template <typename Visit> void forEachChild(Visit visit) const;

    PlixLinkTarget<YogaLayoutItem> linkTarget_;
    YGNodeRef node_ = nullptr;
    QGraphicsLayoutItem* geometryTarget_ = nullptr;
    bool isChild_ = false;
    bool widthIsPercent_ = false;
    bool hasPadding_ = false;
    bool hasMargin_ = false;
    bool startSet_ = false;
    bool endSet_ = false;
    bool topSet_ = false;
    bool bottomSet_ = false;
    bool hasChanged_ = true;
    bool isPlaced_ = false;
    YogaLayoutPass pass_;
};
