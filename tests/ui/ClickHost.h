#pragma once

#include <plix/Plix.h>

#include <functional>
#include <string>
#include <vector>

namespace plix::test {

// A host that records clicks, and may do anything in the callback.
class ClickHost {
public:
    // Sets the callbacks of this host and enables markup. Call it before the card is read.
    void listenTo(PlixDataController* controller);

    // The same as a function, for TestCard.
    std::function<void(PlixDataController*)> setUp();

    // For each click its URI, or that for apps if it has no other. "user 7" and "bot 7" for
    // mentions.
    std::vector<std::string> arrived;

    // Called by the next callback, once.
    std::function<void()> nextAction;
    // Called with the action by every callback of a click.
    std::function<void(ST_ACTION&)> onAction;

private:
    void record(const std::string& what);
};

using Arrived = std::vector<std::string>;

// JSON members of components.
std::string uriAction(const std::string& uri, const std::string& type = "uri");
std::string appAction(const std::string& appUri);

// The JSON of a button.
std::string button(const std::string& action);

} // namespace plix::test
