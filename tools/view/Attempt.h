#pragma once

#include <functional>

class QWidget;

namespace plix::tool {

// Calls the function, and tells the user if it throws a ToolError. Returns whether it
// did not.
bool attempt(QWidget& window, const std::function<void()>& function);

} // namespace plix::tool
