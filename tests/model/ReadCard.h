#pragma once

#include "api/PlixDataMgr.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace plix::test {

// The data items of a card that was read but not built.
class ReadCard {
public:
    explicit ReadCard(const std::string& json);

    // What the reading of it answered.
    int result() const { return result_; }
    PlixDataMgr& manager() { return manager_; }
    PlixDataBubble& bubble() { return *manager_.GetBubble(); }

    // The item at the end of a path of child numbers below the body's top
    // item. Fails the test and answers null when there is none such.
    template <typename Item> std::shared_ptr<Item> body(const std::vector<int>& path = {})
    {
        const auto item = std::dynamic_pointer_cast<Item>(bodyItem(path));
        EXPECT_NE(item, nullptr) << "no item, or one of another class";
        return item;
    }

private:
    std::shared_ptr<PlixDataItem> bodyItem(const std::vector<int>& path);

    PlixDataMgr manager_;
    int result_;
};

// The component that is the body of a card of its own. It keeps that card.
template <typename Item> std::shared_ptr<Item> readComponent(const std::string& json)
{
    const auto card = std::make_shared<ReadCard>(R"({"type": "bubble", "body": )" + json + "}");
    return {card, card->body<Item>().get()};
}

// Takes the oldest log line and expects it to be that of the operation, to
// name what is in `mentions`, and to be the only one.
void expectOneLogLine(const std::string& operation, const std::vector<std::string>& mentions = {});

// The same with more lines behind it.
void expectNextLogLine(const std::string& operation, const std::vector<std::string>& mentions = {});

} // namespace plix::test
