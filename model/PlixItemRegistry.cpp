#include "model/PlixItemRegistry.h"

#include "model/PlixDataItem.h"

PlixItemRegistry& PlixItemRegistry::GetInstance()
{
    // Never destroyed: a card may still exist when static objects are destroyed.
    static auto* const instance = new PlixItemRegistry;
    return *instance;
}

std::int64_t PlixItemRegistry::Add(const std::shared_ptr<PlixDataItem>& item)
{
    const std::int64_t key = KeyOf(item.get());
    items_[key] = item;
    return key;
}

std::shared_ptr<PlixDataItem> PlixItemRegistry::Find(std::int64_t key) const
{
    const auto found = items_.find(key);
    return found == items_.end() ? nullptr : found->second;
}

std::int64_t PlixItemRegistry::KeyOf(const PlixDataItem* item)
{
    return static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(item));
}
