// Added by Plix, not part of Yoga: the end of a layout that would go on for
// minutes. cmake/Yoga.cmake puts it into Yoga's sources.
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

#include <cmath>
#include <limits>
#include <tuple>

namespace facebook::yoga::plix {

// Each node is still visited a few times after the limit: measured once if it
// never was, and laid out.
constexpr int MaxVisitsPerNode = 36;

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

  // How far an earlier one is from this. Not comparable is the farthest.
  float distance(const Offer& earlier) const {
    if (mode != earlier.mode) {
      return std::numeric_limits<float>::infinity();
    }
    return isDefined(size) ? std::abs(size - earlier.size) : 0;
  }
};

inline const CachedMeasurement& nearestMeasurement(
    const LayoutResults& layout,
    const Offer& width,
    const Offer& height) {
  const auto distance = [&](const CachedMeasurement& earlier) {
    return std::tuple(
        width.distance({earlier.widthSizingMode, earlier.availableWidth}),
        height.distance({earlier.heightSizingMode, earlier.availableHeight}));
  };
  const CachedMeasurement* nearest = &layout.cachedMeasurements[0];
  for (uint32_t i = 1; i < layout.nextCachedMeasurementsIndex; i++) {
    if (distance(layout.cachedMeasurements[i]) < distance(*nearest)) {
      nearest = &layout.cachedMeasurements[i];
    }
  }
  return *nearest;
}

// Sets the measured size of a node that is not to be measured again. Answers
// whether it was one.
inline bool measureFromNearest(
    Node& node,
    const Offer& width,
    const Offer& height,
    float ownerWidth,
    LayoutData& data) {
  const LayoutResults& layout = node.getLayout();
  if (visits(data) < data.visitLimit ||
      layout.nextCachedMeasurementsIndex == 0) {
    return false;
  }
  const CachedMeasurement& nearest = nearestMeasurement(layout, width, height);
  const auto measured = [&](const Offer& offer, FlexDirection axis, float size) {
    return offer.mode == SizingMode::StretchFit
        ? offer.size - node.style().computeMarginForAxis(axis, ownerWidth)
        : size;
  };
  node.setLayoutMeasuredDimension(
      measured(width, FlexDirection::Row, nearest.computedWidth),
      Dimension::Width);
  node.setLayoutMeasuredDimension(
      measured(height, FlexDirection::Column, nearest.computedHeight),
      Dimension::Height);
  data.cachedMeasures += 1;
  return true;
}

} // namespace facebook::yoga::plix
