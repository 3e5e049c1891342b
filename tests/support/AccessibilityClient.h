#pragma once

#include <QAccessible>

#include <string>
#include <vector>

namespace plix::test {

// A screen reader, for as long as it lives: QAccessible is active, and the updates of items
// arrive here. (The functions that Qt has for this in tests do not get them: without a
// display, QAccessible::isActive() is always false.)
class AccessibilityClient {
public:
    AccessibilityClient();
    ~AccessibilityClient();

    AccessibilityClient(const AccessibilityClient&) = delete;
    AccessibilityClient& operator=(const AccessibilityClient&) = delete;

    // The updates since the last call, such as "Focus: name", without those of widgets. What is
    // selected follows the name: "TextSelectionChanged: name 4-7", or "none".
    static std::vector<std::string> takeUpdates();
};

} // namespace plix::test
