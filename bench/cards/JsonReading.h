#pragma once

#include <string>

namespace bench {

// Parses the text with jsoncpp and gives the result up again: what any way to
// show a card that arrives as JSON has to do at least.
void parseJson(const std::string& text);

} // namespace bench
