#pragma once

#include "layout/PlixLink.h"

#include <QMarginsF>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QStringList>
#include <Qt>

#include <yoga/Yoga.h>

#include <memory>
#include <optional>

class QGraphicsLayoutItem;

// Binds one Yoga node to one graphics item: takes style settings, and hands
// the computed rectangle to the item's QGraphicsLayoutItem part.
//
// Two trees meet here: the Qt item tree owns the items, each item owns its own
// node, and the node tree owns nothing. Either end of a link may go first.
//
// Lengths are logical pixels. No operation throws. An item without a node does
// nothing and answers with the default that is stated, -1 for lengths. NaN is
// what Yoga reports for a length that it has not computed yet.
class YogaLayoutItem {
public:
    explicit YogaLayoutItem(bool useWebDefaults);
    virtual ~YogaLayoutItem();

    YogaLayoutItem(const YogaLayoutItem&) = delete;
    YogaLayoutItem& operator=(const YogaLayoutItem&) = delete;

    // How those refer to it who may outlive it.
    PlixLink<YogaLayoutItem> watch() const { return PlixLink<YogaLayoutItem>(self_); }

    virtual void setOrientation(Qt::Orientation orientation);
    virtual Qt::Orientation orientation() const;
    // Takes one Qt::AlignmentFlag. What it sets depends on `mainAxis`, and the
    // horizontal flags take it the other way round than the vertical ones:
    // callers pass "the parent is horizontal" for both and rely on it.
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
    // Whether a padding of its own was set, on all edges or at the bottom,
    // that a zone's insets must not replace.
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

    // A null child, one that has a parent already, or one that would close a
    // circle is not inserted; addChild then logs why. The index is brought
    // into range.
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
    // A negative factor counts as 0: Yoga would take it for a share of its own.
    virtual void setGrowFactor(double factor);
    virtual int growFactor() const;

    // What the item needs for its content, asked by Yoga once
    // setHasMeasureFunc is on. The base takes what it is offered.
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
    // Sets the left edge, in either reading direction: unlike its pixel form.
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

    // Whether the item has a margin of its own, which its box's spacing leaves
    // alone.
    virtual void setHasMargin(bool has);
    virtual bool hasMargin() const;

    virtual void applyLayout();
    // Only for items with a measure function; others follow their children.
    virtual void markDirty();
    virtual void setClickable(bool on);
    virtual void inheritCornerRadius(int radius);

    // Gives an absolute item the parent's paddings for the offsets it lacks.
    void insetInto(const YogaLayoutItem& parent);
    void setHasMeasureFunc(bool has);
    void setHasBaselineFunc(bool has);
    // A share of the parent's width, which bounds the width however it is set.
    void setMaxWidthPercent(double percent);
    // How much of the missing room this item gives up; none unless set.
    void setShrinkFactor(double factor);
    // Width divided by height; either follows from the other.
    void setAspectRatio(double ratio);

    void calculateLayout(double width, double height);
    void calculateLayout();
    // Places this item and all below it. Who is told of it may delete any of
    // them, or lay out again.
    void applyLayoutRecursive();

    // A width for the rest of this layout, and the relayout mark for the parent if
    // the item is wider than that.
    // The next layout starts from the style's own width again: a layout that
    // started from the widths of the one before would come to another result.
    //
    // The first form is for an item that is being placed. The second one is for
    // an item that is being measured: Yoga loses track of a style that changes
    // while it computes, so the width waits for the parent's relayoutInPlace.
    void changeWidth(double width);
    void changeWidthOnRelayout(double width);

    // The relayout mark. Whoever places a child of a marked item calls
    // relayoutInPlace.
    void setRelayoutPending();
    bool isRelayoutPending() const { return pass_.relayoutPending; }
    // Clears the mark and computes this subtree again at the size it has.
    void relayoutInPlace();

    // Whether the style, the content or the items of this subtree have changed
    // since the changes were forgotten.
    bool hasChanged() const;
    void forgetChanges();
    // Lets the next layout of this subtree come to what the first layout of a
    // new one would: nothing is placed, and everything is measured again.
    void startOver();
    // Whether the item has been placed since then: what its children can know
    // about its size is true.
    bool isPlaced() const { return isPlaced_; }

    // Null, 0 and null when there is none.
    YogaLayoutItem* childAt(int index) const;
    int childCount() const;
    YogaLayoutItem* parentItem() const;
    // The computed rectangle, relative to the parent's, and the paddings inside
    // it: percentages are pixels here.
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
    static float ToFloat(double value) { return static_cast<float>(value); }

    bool canInsert(const YogaLayoutItem* child) const;
    void insertNode(YogaLayoutItem* child, int index);
    float padding(YGEdge edge) const;
    float margin(YGEdge edge) const;
    float position(YGEdge edge, bool isSet) const;
    // What concerns one layout of the item, from its start to that of the next.
    struct Pass {
        // For an item whose width has changed: its style before.
        std::optional<YGValue> styleWidth;
        // For an item that waits for its parent's relayout.
        std::optional<double> pendingWidth;
        // For a parent.
        bool relayoutPending = false;
        bool wasRelaidOut = false;
        // Whether children that were placed before that have to be placed again.
        bool placesAgain = false;
        // Where the item stood when it was computed again in its place.
        std::optional<QPointF> keptPosition;
        // Whether the item's children are being placed for the second time.
        bool isSettled = false;
    };
    enum class Round { First, Second };

    // Every operation that sets a style begins with this; false without a node.
    bool startChange();
    void place(Round round);
    void placeChildren(Round round);
    void startPass();
    void forgetKeptPositions();
    void calculateLayout(double width, double height, YGDirection direction);
    // By more than what rounding adds.
    bool isWiderThan(double width) const;
    bool isWiderThanPending() const;
    bool hasChildWiderThanPending() const;
    void applyPendingWidth();
    int relayoutsAbove() const;
    template <typename Visit> void forEachChild(Visit visit) const;

    std::shared_ptr<YogaLayoutItem> self_; // owns nothing
    YGNodeRef node_ = nullptr;
    QGraphicsLayoutItem* geometryTarget_ = nullptr;
    bool widthIsPercent_ = false;
    bool hasPadding_ = false;
    bool hasMargin_ = false;
    bool startSet_ = false;
    bool endSet_ = false;
    bool topSet_ = false;
    bool bottomSet_ = false;
    bool hasChanged_ = true;
    bool isPlaced_ = false;
    Pass pass_;
};
