#pragma once

#include <plix/Plix.h>

#include <functional>
#include <string>
#include <vector>

namespace plix::test {

// A host that notes what it is told of clicks, and may do anything about it.
class ClickHost {
public:
    // To be called before the card is read: has everything told to this host,
    // and mentions read.
    void listenTo(PlixDataController* controller);

    // The same as a function, for those who make the card.
    std::function<void(PlixDataController*)> setUp();

    // The URI of each click, that for apps when there is no other; "user 7" and
    // "bot 7" for mentions.
    std::vector<std::string> arrived;

    // What it does the next time, once.
    std::function<void()> deed;
    // What it does with the action, every time.
    std::function<void(ST_ACTION&)> onAction;

private:
    void note(const std::string& what);
};

using Arrived = std::vector<std::string>;

// JSON members for components.
std::string uriAction(const std::string& uri, const std::string& type = "uri");
std::string appAction(const std::string& appUri);

// An item's JSON with a label of its own.
std::string button(const std::string& action);

} // namespace plix::test
