#pragma once

#include <string>

namespace bench {

// A message that is measured.
struct Card {
    std::string name;
    std::string json;
};

} // namespace bench
