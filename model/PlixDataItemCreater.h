#pragma once

#include "model/PlixDataItem.h"

#include <functional>
#include <map>
#include <memory>

// Makes empty data items by kind.
class PlixDataItemCreater {
public:
    PlixDataItemCreater();

    // Null for a kind that cannot stand in a card's contents: an unknown one,
    // or the bubble.
    std::shared_ptr<PlixDataItem> Create(int kind) const;

private:
    std::map<int, std::function<std::shared_ptr<PlixDataItem>()>> creators_;
};
