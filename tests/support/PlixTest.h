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

// Every test starts with the process-wide settings of a new process, except that the
// library's log goes to the test host. That fails the test for each line that the test did
// not take (ExpectedLog.h).
class PlixTest : public testing::Test {
protected:
    PlixTest();
    ~PlixTest() override;
};

// One card as a host has it. Its end deletes the item, then frees the controller.
class TestCard {
public:
    // Calls `configure` with the new controller, then reads `json` and builds its item.
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
    // Fails the test and returns null when there is no such item.
    QGraphicsItem* item(const std::vector<int>& path) const;

    // The same, cast to one of the item classes: ui<PlixBoxUI>({0}).
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

// The JSON of a bubble. `body` is the JSON of its body zone, `more` are other members of
// the bubble, each followed by a comma.
std::string bubbleWithBody(const std::string& body, const std::string& more = {});

// The JSON of a box. `contents` are the components in it, separated by commas; `more` as
// above.
std::string box(const std::string& layout, const std::string& contents,
                const std::string& more = {});

// The JSON of a component. `more` are its other members, each followed by a comma:
// component("separator", R"("margin": "md",)").
std::string component(const std::string& type, const std::string& more = {});

// The JSON of a text component. `words` are escaped for JSON already.
std::string text(const std::string& words, const std::string& more = {});

} // namespace plix::test
