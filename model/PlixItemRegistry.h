#pragma once

#include <cstdint>
#include <map>
#include <memory>

class PlixDataItem;

// The data items behind graphics items, process-wide.
//
// A graphics item stores the key of its data item as its data of role
// kDataItemRole and finds the item here. Entries are never removed: a graphics
// item may outlive its controller and must still find its data.
class PlixItemRegistry {
public:
    static PlixItemRegistry& GetInstance();

    // Returns the key: the item's address.
    std::int64_t Add(const std::shared_ptr<PlixDataItem>& item);
    std::shared_ptr<PlixDataItem> Find(std::int64_t key) const;

    static std::int64_t KeyOf(const PlixDataItem* item);

private:
    PlixItemRegistry() = default;

    std::map<std::int64_t, std::shared_ptr<PlixDataItem>> items_;
};

namespace plix {

constexpr int kDataItemRole = 256;

} // namespace plix
