// Added by Plix, not part of Yoga: ends a layout that would take minutes.
// cmake/yoga/Changes.cmake copies it into Yoga's sources.
//
// A box may measure each of its children twice, under two different
// constraints. Where rows and columns alternate, this doubles the number of
// constraints at each level, so no number of remembered measurements is
// enough. Therefore a layout has a limit of visits for each node. Cards that
// people write stay far below the limit, so their layout does not change. Once
// it is reached, a node that has been measured before is not measured again:
// it gets the size of its measurement under the nearest constraints.
#pragma once

#include <yoga/event/event.h>
#include <yoga/node/Node.h>
#include <yoga/numeric/Comparison.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <tuple>

namespace facebook::yoga::plix {

// After the limit, each node is still visited a few times: it is measured if it
// remembers no measurement, and laid out.
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

// The constraint of one dimension.
struct Constraint {
  SizingMode mode;
  float size;

  // Whether it fixes the size: then the measured size does not depend on the
  // content.
  bool isExact() const {
    return mode == SizingMode::StretchFit;
  }

  // The distance of an earlier constraint. It is infinite for another mode.
  float distance(const Constraint& earlier) const {
    if (mode != earlier.mode) {
      return std::numeric_limits<float>::infinity();
    }
    return isDefined(size) ? std::abs(size - earlier.size) : 0;
  }

  // The measured size, without margins. `nearest` is the size that was measured
  // under the nearest constraint.
  float measuredSize(float margin, float nearest) const {
    if (isExact()) {
      return size - margin;
    }
    return mode == SizingMode::FitContent ? std::min(nearest, size - margin)
                                          : nearest;
  }
};

// Null if the node remembers no measurement that can be used.
inline const CachedMeasurement* nearestMeasurement(
    const LayoutResults& layout,
    const Constraint& width,
    const Constraint& height) {
  const CachedMeasurement* nearest = nullptr;
  std::tuple<float, float> nearestDistance;
  for (uint32_t i = 0; i < layout.nextCachedMeasurementsIndex; i++) {
    const CachedMeasurement& earlier = layout.cachedMeasurements[i];
    const Constraint earlierWidth{earlier.widthSizingMode, earlier.availableWidth};
    const Constraint earlierHeight{
        earlier.heightSizingMode, earlier.availableHeight};
    if (earlierWidth.isExact() != width.isExact() ||
        earlierHeight.isExact() != height.isExact()) {
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

// If the node is not to be measured again, sets its measured size and returns
// true.
inline bool measureFromNearest(
    Node& node,
    const Constraint& width,
    const Constraint& height,
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
      width.measuredSize(margin(FlexDirection::Row), nearest->computedWidth),
      Dimension::Width);
  node.setLayoutMeasuredDimension(
      height.measuredSize(margin(FlexDirection::Column), nearest->computedHeight),
      Dimension::Height);
  data.cachedMeasures += 1;
  return true;
}

} // namespace facebook::yoga::plix
