// Added by Plix, not part of Yoga: the measurements that a node remembers.
// cmake/yoga/Changes.cmake copies it into Yoga's sources.
//
// Few nodes are measured more than 8 times in a layout, which is as many as Yoga
// itself remembers. Those are in the node. The others, which only costly cards
// need, get memory when the first of them is stored: a node that always had room
// for all of them would be three times as large, and would take longer to create
// than to lay out.
#pragma once

#include <yoga/node/CachedMeasurement.h>

#include <array>
#include <cstddef>
#include <vector>

namespace facebook::yoga::plix {

class Measurements {
 public:
  static constexpr std::size_t MaxCount = 64;

  CachedMeasurement& operator[](std::size_t index) {
    if (index < first_.size()) {
      return first_[index];
    }
    if (others_.empty()) {
      others_.resize(MaxCount - first_.size());
    }
    return others_[index - first_.size()];
  }

  const CachedMeasurement& operator[](std::size_t index) const {
    if (index < first_.size()) {
      return first_[index];
    }
    static constexpr CachedMeasurement none{};
    return others_.empty() ? none : others_[index - first_.size()];
  }

 private:
  std::array<CachedMeasurement, 8> first_;
  std::vector<CachedMeasurement> others_;
};

} // namespace facebook::yoga::plix
