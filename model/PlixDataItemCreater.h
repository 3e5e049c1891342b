#pragma once

#include "model/PlixDataItem.h"

#include <memory>

// Creates empty data items by kind.
class PlixDataItemCreater {
public:
    // Null for an unknown kind, and for the bubble, which no container can hold.
    std::shared_ptr<PlixDataItem> Create(int kind) const;
};
