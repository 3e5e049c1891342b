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

    // The result of reading it.
    int result() const { return result_; }
    PlixDataMgr& manager() { return manager_; }
    PlixDataBubble& bubble() { return *manager_.GetBubble(); }

    // The item at the end of a path of child indexes, from the body's top item.
    // Fails the test and returns null if there is no such item.
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

// Reads a component as the body of a card. The result keeps that card alive.
template <typename Item> std::shared_ptr<Item> readComponent(const std::string& json)
{
    const auto card = std::make_shared<ReadCard>(R"({"type": "bubble", "body": )" + json + "}");
    return {card, card->body<Item>().get()};
}

// Takes the oldest log line. Expects it to be of the operation, to contain every
// text in `mentions`, and to be the only line.
void expectOneLogLine(const std::string& operation, const std::vector<std::string>& mentions = {});

// The same, but more lines may follow.
void expectNextLogLine(const std::string& operation, const std::vector<std::string>& mentions = {});

} // namespace plix::test
