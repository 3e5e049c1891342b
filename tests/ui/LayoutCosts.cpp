#include "LayoutCosts.h"

#include <yoga/event/event.h>

#include <algorithm>

namespace plix::test {
namespace {

using facebook::yoga::Event;

int countNodes(YGNodeConstRef node)
{
    int count = 1;
    for (std::size_t i = 0; i < YGNodeGetChildCount(node); ++i)
        count += countNodes(YGNodeGetChild(const_cast<YGNodeRef>(node), i));
    return count;
}

} // namespace

void LayoutCost::raiseTo(const LayoutCost& other)
{
    visits = std::max(visits, other.visits);
    measureCalls = std::max(measureCalls, other.measureCalls);
}

LayoutCosts::LayoutCosts()
{
    Event::subscribe([this](YGNodeConstRef node, Event::Type type, const Event::Data&) {
        if (type == Event::LayoutPassStart)
            begin(node);
        else if (type == Event::NodeLayout)
            ++visits_;
        else if (type == Event::MeasureCallbackStart)
            ++measureCalls_;
        else if (type == Event::LayoutPassEnd)
            end();
    });
}

LayoutCosts::~LayoutCosts()
{
    Event::reset();
}

double LayoutCosts::allVisits() const
{
    return static_cast<double>(sum_) / maxNodes_;
}

void LayoutCosts::begin(YGNodeConstRef root)
{
    nodes_ = countNodes(root);
    maxNodes_ = std::max(maxNodes_, nodes_);
    visits_ = 0;
    measureCalls_ = 0;
}

void LayoutCosts::end()
{
    ++layouts_;
    sum_ += visits_;
    measureCallSum_ += measureCalls_;
    highest_.raiseTo(
        {static_cast<double>(visits_) / nodes_, static_cast<double>(measureCalls_) / nodes_});
}

} // namespace plix::test
