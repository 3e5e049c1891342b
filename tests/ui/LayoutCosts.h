#pragma once

#include <yoga/Yoga.h>

namespace plix::test {

// The cost of one or more layouts, per node of the layout.
struct LayoutCost {
    double visits = 0; // Yoga measured or laid out the node, or used a remembered size
    double measureCalls = 0; // Yoga called measure() of its item

    // Sets each value to the higher one of both.
    void raiseTo(const LayoutCost& other);
};

// Counts the work of Yoga for as long as it lives. There must be only one at a time.
class LayoutCosts {
public:
    LayoutCosts();
    ~LayoutCosts();

    LayoutCosts(const LayoutCosts&) = delete;
    LayoutCosts& operator=(const LayoutCosts&) = delete;

    int layouts() const { return layouts_; }
    // The highest costs of a single layout.
    const LayoutCost& highest() const { return highest_; }
    // Of all layouts.
    long visits() const { return sum_; }
    long measureCalls() const { return measureCallSum_; }
    // The visits of all layouts, per node of the largest one.
    double allVisits() const;

private:
    void begin(YGNodeConstRef root);
    void end();

    int nodes_ = 0;
    int maxNodes_ = 0;
    int layouts_ = 0;
    long visits_ = 0;
    long measureCalls_ = 0;
    long sum_ = 0;
    long measureCallSum_ = 0;
    LayoutCost highest_;
};

} // namespace plix::test
