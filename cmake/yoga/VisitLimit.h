// Added by Plix, not part of Yoga: the end of a layout that would go on for
// minutes. cmake/yoga/Changes.cmake puts it into Yoga's sources.
//
// A box may ask each of its children twice how large it wants to be, and under
// two different constraints. In rows and columns in turn, the second doubles
// the number of constraints at each level, so no number of remembered
// measurements is enough. A layout therefore has a number of visits for each
// node. A card that people write stays far below it and is laid out as ever.
// Once they are used up, a node that has been measured before is not measured
// again: it answers with the measurement that was the nearest to what is asked.
#pragma once

#include <yoga/event/event.h>
#include <yoga/node/Node.h>
#include <yoga/numeric/Comparison.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace facebook::yoga::plix {

// After the limit, each node is still visited a few times: measured if nothing
// answers for it, and laid out.
constexpr int MaxVisitsPerNode = 28;

inline int countNodes(const Node& node) {
  int count = 1;
  for (const Node* child : node.getChildren()) {
    count += countNodes(*child);
  }
  return count;
}

inline int visitLimit(const Node& root) {
  return MaxVisitsPerNode * countNodes(root);
}

inline int visits(const LayoutData& data) {
  return data.layouts + data.measures + data.cachedLayouts +
      data.cachedMeasures;
}

// One side of a constraint.
struct Offer {
  SizingMode mode;
  float size;

  // A side that is given says nothing about how large the content would be.
  bool isGiven() const {
    return mode == SizingMode::StretchFit;
  }

  // How far an earlier one is from this. Another mode is the farthest.
  float distance(const Offer& earlier) const {
    if (mode != earlier.mode) {
      return std::numeric_limits<float>::infinity();
    }
    return isDefined(size) ? std::abs(size - earlier.size) : 0;
  }

  float answer(float margin, float nearest) const {
    if (isGiven()) {
      return size - margin;
    }
    return mode == SizingMode::FitContent ? std::min(nearest, size - margin)
                                          : nearest;
  }
};

// Null if no side may be answered from what the node remembers.
inline const CachedMeasurement* nearestMeasurement(
    const LayoutResults& layout,
    const Offer& width,
    const Offer& height) {
  const CachedMeasurement* nearest = nullptr;
  std::tuple<float, float> nearestDistance;
  for (uint32_t i = 0; i < layout.nextCachedMeasurementsIndex; i++) {
    const CachedMeasurement& earlier = layout.cachedMeasurements[i];
    const Offer earlierWidth{earlier.widthSizingMode, earlier.availableWidth};
    const Offer earlierHeight{
        earlier.heightSizingMode, earlier.availableHeight};
    if (earlierWidth.isGiven() != width.isGiven() ||
        earlierHeight.isGiven() != height.isGiven()) {
      continue;
    }
    const std::tuple distance{
        width.distance(earlierWidth), height.distance(earlierHeight)};
    if (nearest == nullptr || distance < nearestDistance) {
      nearest = &earlier;
      nearestDistance = distance;
    }
  }
  return nearest;
}

// Sets the measured size of a node that is not to be measured again. Answers
// whether it was one.
inline bool measureFromNearest(
    Node& node,
    const Offer& width,
    const Offer& height,
    float ownerWidth,
    LayoutData& data) {
  if (visits(data) < data.visitLimit) {
    return false;
  }
  const CachedMeasurement* nearest =
      nearestMeasurement(node.getLayout(), width, height);
  if (nearest == nullptr) {
    return false;
  }
  const auto margin = [&](FlexDirection axis) {
    return node.style().computeMarginForAxis(axis, ownerWidth);
  };
  node.setLayoutMeasuredDimension(
      width.answer(margin(FlexDirection::Row), nearest->computedWidth),
      Dimension::Width);
  node.setLayoutMeasuredDimension(
      height.answer(margin(FlexDirection::Column), nearest->computedHeight),
      Dimension::Height);
  data.cachedMeasures += 1;
  return true;
}

} // namespace facebook::yoga::plix
