#pragma once

#include <memory>

class PlixDataBubble;

namespace plix {

// Takes a tree apart so that its items, which own each other, are freed. Does
// not recurse and allocates nothing: the host may have little stack or memory left.
void DiscardDataTree(const std::shared_ptr<PlixDataBubble>& bubble);

} // namespace plix
