#pragma once

#include <memory>

class PlixDataBubble;

namespace plix {

// Takes a tree apart so that its items, which own each other, are freed. Does
// not recurse: the host may have little stack left.
void DiscardDataTree(const std::shared_ptr<PlixDataBubble>& bubble);

} // namespace plix
