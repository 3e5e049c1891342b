#include "model/ReadCard.h"

#include "support/ExpectedLog.h"

namespace plix::test {

ReadCard::ReadCard(const std::string& json)
    : result_(manager_.InitData(json))
{
}

std::shared_ptr<PlixDataItem> ReadCard::bodyItem(const std::vector<int>& path)
{
    std::shared_ptr<PlixDataItem> item = bubble().GetBody()->GetChild(0);
    for (const int step : path) {
        const auto box = std::dynamic_pointer_cast<PlixDataBox>(item);
        item = box ? box->GetContainer()->GetChild(step) : nullptr;
    }
    return item;
}

void expectNextLogLine(const std::string& operation, const std::vector<std::string>& mentions)
{
    const std::string line = takeLogLine();
    const std::string prefix = "call PlixJsonDataParse::" + operation + " failed. ";
    EXPECT_EQ(line.substr(0, prefix.size()), prefix);
    for (const std::string& mention : mentions)
        EXPECT_NE(line.find(mention), std::string::npos) << line << " lacks " << mention;
}

void expectOneLogLine(const std::string& operation, const std::vector<std::string>& mentions)
{
    expectNextLogLine(operation, mentions);
    EXPECT_EQ(pendingLogLines(), 0);
}

} // namespace plix::test
