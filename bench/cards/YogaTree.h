#pragma once

#include <QRectF>

#include <yoga/Yoga.h>

#include <memory>
#include <vector>

namespace bench {

struct Element;
struct Flow;

// A raw Yoga tree of the elements of a card. Its leaves know their sizes.
class YogaTree {
public:
    // `card` has to live longer.
    explicit YogaTree(const Element& card);

    // As the library does: within a height, then in any.
    void calculateTwice();
    // With all texts measured again.
    void forgetSizes();
    void calculate(qreal width);

    // In the order of the elements, a parent before its children.
    QRectF rect(std::size_t index) const;

private:
    struct Free {
        void operator()(YGNodeRef node) const { YGNodeFreeRecursive(node); }
    };

    YGNodeRef add(const Element& element);
    void addChildren(YGNodeRef node, const Element& element);

    const Element& card_;
    std::vector<YGNodeRef> nodes_;
    std::vector<YGNodeRef> texts_;
    std::unique_ptr<YGNode, Free> root_;
};

} // namespace bench
