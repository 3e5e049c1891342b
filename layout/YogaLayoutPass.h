#pragma once

#include <QPointF>

#include <yoga/Yoga.h>

#include <optional>

// What an item remembers during one layout pass. A pass begins when the layout of
// the root is calculated, and ends when the next one begins.
//
// It is about texts that find themselves wider than the inside of their parent. Such
// a text shows itself in a smaller width at once, and its parent's layout is
// calculated again in place, at the size and position that the parent has:
//
// 1. While Yoga calculates, it measures the text. The text notes the smaller width
//    (`pendingWidth`), because Yoga loses track of a style that changes during that.
// 2. Items are placed, each parent before its children. If a child is wider than its
//    pending width by then, the parent first sets the pending widths and is laid out
//    again.
// 3. A text may also find out only when it is placed. It sets its width, which marks
//    the parent (Relayout::Pending), and the parent is laid out again. That makes the
//    rectangles of the children that were placed before it out of date
//    (Round::Outdated). So all children are placed a second time.
// 4. The next pass restores the width that the text had before (`styleWidth`).
//
// This ends, because a parent is laid out again only once in a pass, in at most four
// boxes inside each other, and never while children are placed the second time.
struct YogaLayoutPass {
    enum class Relayout { None, Pending, Done };
    enum class Round { First, Outdated, Second };

    // Of an item that has changed its own width: the style before.
    std::optional<YGValue> styleWidth;
    // Of an item that waits for the relayout of its parent.
    std::optional<double> pendingWidth;
    // Of a parent: its own relayout.
    Relayout relayout = Relayout::None;
    // Of a parent: how often its children are placed. Outdated: the first round is
    // not over, and a second one must follow.
    Round round = Round::First;
    // Of a parent that was laid out again: its position, which Yoga has reset.
    std::optional<QPointF> keptPosition;
};
