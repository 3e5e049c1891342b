#pragma once

#include <yoga/Yoga.h>

namespace plix::test {

// What one layout or several cost, for each node that took part.
struct LayoutCost {
    double visits = 0; // the node was asked for its size or laid out, also from memory
    double measureCalls = 0; // its item was asked for its size

    // Keeps the higher one of each.
    void raiseTo(const LayoutCost& other);
};

// Counts what Yoga does for as long as this lives. One at a time.
class LayoutCosts {
public:
    LayoutCosts();
    ~LayoutCosts();

    LayoutCosts(const LayoutCosts&) = delete;
    LayoutCosts& operator=(const LayoutCosts&) = delete;

    int layouts() const { return layouts_; }
    // The highest of any single layout.
    const LayoutCost& highest() const { return highest_; }
    // Visits of all layouts, for each node of the largest one.
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
    LayoutCost highest_;
};

} // namespace plix::test
