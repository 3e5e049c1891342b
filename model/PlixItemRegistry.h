#pragma once

#include <cstdint>
#include <map>
#include <memory>

class PlixDataItem;

// The data items of all graphics items, process-wide. GUI thread only.
//
// A graphics item stores the key of its data item as QGraphicsItem::data() of the
// role kDataItemRole, and finds the data item here. Entries are never removed: a
// graphics item may outlive its controller and must still find its data.
class PlixItemRegistry {
public:
    static PlixItemRegistry& GetInstance();

    // Returns the key: the item's address.
    std::int64_t Add(const std::shared_ptr<PlixDataItem>& item);
    // Null for an unknown key.
    std::shared_ptr<PlixDataItem> Find(std::int64_t key) const;

    static std::int64_t KeyOf(const PlixDataItem* item);

private:
    PlixItemRegistry() = default;

    std::map<std::int64_t, std::shared_ptr<PlixDataItem>> items_;
};

namespace plix {

constexpr int kDataItemRole = 256;

} // namespace plix
