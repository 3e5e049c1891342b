#pragma once

#include "support/ExpectedLog.h"

#include <plix/Plix.h>

#include <gtest/gtest.h>

#include <QGraphicsItem>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class PlixDataBubble;
class PlixDataItem;
class PlixDataMgr;

namespace plix::test {

// Every test starts from the process-wide settings of a fresh process, except
// that the library's log goes to the test host, which fails the test for each
// line that is not taken (ExpectedLog.h).
class PlixTest : public testing::Test {
protected:
    PlixTest();
    ~PlixTest() override;
};

// One card as a host has it. The item goes first, then the controller.
class TestCard {
public:
    // Reads and builds `json` with what `configure` sets before that.
    explicit TestCard(const std::string& json,
                      const std::function<void(PlixDataController*)>& configure = {});
    ~TestCard();

    TestCard(const TestCard&) = delete;
    TestCard& operator=(const TestCard&) = delete;

    PlixDataController* controller() const { return controller_; }
    PlixDataMgr& manager() const;
    std::shared_ptr<PlixDataBubble> bubbleData() const;
    int initResult() const { return initResult_; }

    // The bubble's item.
    QGraphicsItem* root() const { return root_; }

    // The item at the end of a path of child numbers, in the order that the
    // children were made: item({0, 2}) is the third child of the first child.
    // Fails the test and answers null when there is no such item.
    QGraphicsItem* item(const std::vector<int>& path) const;

    // The same as one of the item classes: ui<PlixBoxUI>({0}).
    template <typename Ui> Ui* ui(const std::vector<int>& path) const
    {
        auto* const found = dynamic_cast<Ui*>(item(path));
        EXPECT_NE(found, nullptr) << "the item there is of another class";
        return found;
    }

private:
    PlixDataController* controller_;
    int initResult_;
    QGraphicsItem* root_;
};

// A bubble around `body`, the JSON of its body zone; `more` are further members
// of the bubble, each followed by a comma.
std::string bubbleWithBody(const std::string& body, const std::string& more = {});

// A box of `contents`, JSON members separated by commas; `more` as above.
std::string box(const std::string& layout, const std::string& contents,
                const std::string& more = {});

// A component with members of its own, each followed by a comma:
// component("separator", R"("margin": "md",)").
std::string component(const std::string& type, const std::string& more = {});

// A text component; `words` as they stand in JSON.
std::string text(const std::string& words, const std::string& more = {});

} // namespace plix::test
