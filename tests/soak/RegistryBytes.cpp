#include "soak/RegistryBytes.h"

#include "bench/cards/HeapCount.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDiscardDataTree.h"

#include <map>
#include <memory>

namespace plix::test {
namespace {

// What an empty bubble takes, which a controller makes before it reads anything.
std::int64_t bytesOfBubble()
{
    const std::int64_t before = bench::heapCount().liveBytes;
    const auto bubble = std::make_shared<PlixDataBubble>();
    bubble->InitZones();
    const std::int64_t bytes = bench::heapCount().liveBytes - before;
    DiscardDataTree(bubble);
    return bytes;
}

// What an entry of the registry takes, besides the item.
std::int64_t bytesOfEntry()
{
    std::map<std::int64_t, std::shared_ptr<PlixDataItem>> entries;
    const std::int64_t before = bench::heapCount().liveBytes;
    entries[0] = nullptr;
    return bench::heapCount().liveBytes - before;
}

} // namespace

RegistryBytes::RegistryBytes()
    : bubble_(bytesOfBubble())
    , entry_(bytesOfEntry())
{
}

std::int64_t RegistryBytes::ofCard(std::int64_t read, int items) const
{
    return bubble_ + read + items * entry_;
}

} // namespace plix::test
