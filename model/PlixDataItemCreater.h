#pragma once

#include "model/PlixDataItem.h"

#include <functional>
#include <map>
#include <memory>

// Creates empty data items by kind.
class PlixDataItemCreater {
public:
    PlixDataItemCreater();

    // Null for an unknown kind, and for the bubble, which no container can hold.
    std::shared_ptr<PlixDataItem> Create(int kind) const;

private:
    std::map<int, std::function<std::shared_ptr<PlixDataItem>()>> creators_;
};
