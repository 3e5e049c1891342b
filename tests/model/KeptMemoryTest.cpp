// How much memory the data items of a card take. Those of a card that was built are
// kept for good.
#include "api/PlixDataMgr.h"
#include "model/HeapUse.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDataItemCreater.h"
#include "support/PlixTest.h"

#include <QDir>
#include <QFile>

#include <memory>
#include <string>
#include <vector>

namespace plix::test {
namespace {

class KeptMemory : public PlixTest { };

int countItems(const PlixDataContainer& container)
{
    int count = container.GetChildCount();
    for (const auto& child : container.GetChildren()) {
        if (const auto* box = dynamic_cast<const PlixDataBox*>(child.get()))
            count += countItems(*box->GetContainer());
    }
    return count;
}

// What the data items of a card take, with their controller, but not the registry's
// entry for each.
struct CardMemory {
    HeapUse heap;
    int items = 0;

    double bytesPerItem() const { return static_cast<double>(heap.bytes) / items; }
    double blocksPerItem() const { return static_cast<double>(heap.blocks) / items; }
};

CardMemory memoryOf(const std::string& json)
{
    const HeapUse before = heapUse();
    PlixDataMgr manager;
    manager.InitData(json);
    CardMemory memory {heapUse() - before, 1};
    for (const auto& zone : manager.GetBubble()->GetZones())
        memory.items += countItems(*zone.container);
    return memory;
}

std::vector<std::string> exampleCards()
{
    std::vector<std::string> cards;
    const QDir folder(QStringLiteral(PLIX_CARDS), QStringLiteral("*.json"));
    for (const QFileInfo& info : folder.entryInfoList()) {
        QFile file(info.filePath());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        cards.push_back(file.readAll().toStdString());
    }
    return cards;
}

TEST_F(KeptMemory, ExampleCardsTakeFewBytesAndBlocksPerItem)
{
    constexpr double kMaxMeanBytes = 310;
    constexpr double kMaxMeanBlocks = 3.8;
    double bytes = 0;
    double blocks = 0;
    const std::vector<std::string> cards = exampleCards();
    ASSERT_GT(cards.size(), 30U);
    for (const std::string& json : cards) {
        const CardMemory memory = memoryOf(json);
        bytes += memory.bytesPerItem();
        blocks += memory.blocksPerItem();
    }
    const auto count = static_cast<double>(cards.size());
    EXPECT_LE(bytes / count, kMaxMeanBytes);
    EXPECT_LE(blocks / count, kMaxMeanBlocks);
}

TEST_F(KeptMemory, WordsThatAreNotOfTheFormatLeaveNothingBehind)
{
    const std::string first = bubbleWithBody(text("a", R"("color": "unknown 1 of the card",)"));
    const std::string second = bubbleWithBody(text("a", R"("color": "unknown 2 of the card",)"));
    memoryOf(first);
    const HeapUse before = heapUse();
    memoryOf(second);
    const HeapUse left = heapUse() - before;
    EXPECT_EQ(left.blocks, 0);
    EXPECT_EQ(left.bytes, 0);
}

TEST_F(KeptMemory, AnItemWithoutKeysTakesOneBlock)
{
    const PlixDataItemCreater creater;
    for (int kind = PlixKindImage; kind <= PlixKindSeparator; ++kind) {
        SCOPED_TRACE(kind);
        constexpr std::int64_t kMaxBytes = 140;
        const HeapUse before = heapUse();
        const std::shared_ptr<PlixDataItem> item = creater.Create(kind);
        const HeapUse taken = heapUse() - before;
        const auto* const box = dynamic_cast<const PlixDataBox*>(item.get());
        EXPECT_EQ(taken.blocks, box ? 2 : 1) << "a box has a list of children";
        EXPECT_LE(taken.bytes, box ? kMaxBytes + 80 : kMaxBytes);
        if (box)
            box->GetContainer()->Clear();
    }
}

TEST_F(KeptMemory, AnActionTakesWhatItsCardGives)
{
    const std::string with = R"("action": {"type": "message", "label": "Yes", "text": "y"},)";
    const HeapUse without = memoryOf(bubbleWithBody(text("a"))).heap;
    const HeapUse taken = memoryOf(bubbleWithBody(text("a", with))).heap - without;
    EXPECT_LE(taken.bytes, 160);
}

} // namespace
} // namespace plix::test
