#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace plix::test {

// A kind of card that once took far more time or memory than its size. Each that is found
// becomes a row.
struct Hazard {
    std::string name;
    // The card of size `n`, of about that many of what made it costly.
    std::function<std::string(int n)> json;
    // A size from which the costs grow evenly.
    int n;
    bool hasMarkup = false;

    friend std::ostream& operator<<(std::ostream& out, const Hazard& hazard)
    {
        return out << hazard.name;
    }
};

const std::vector<Hazard>& hazards();

} // namespace plix::test
