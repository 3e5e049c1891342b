#pragma once

#include <string>
#include <vector>

namespace plix::test {

// A level of a card that is costly to lay out: what its box is, and what is in
// it before and after the box of the next level, JSON components.
struct CostlyLevel {
    std::string layout;
    std::string members; // of the box, each followed by a comma
    std::vector<std::string> before;
    std::vector<std::string> after;
};

// Boxes nested in each other, as many as are read. The levels repeat, from the
// outside.
struct CostlyCard {
    std::string name;
    std::vector<CostlyLevel> levels;
    bool rightToLeft = false;

    // `width`: how often each level has what is before and after its box.
    std::string json(int depth, int width = 1) const;
    // As wide as 64 KB allow.
    std::string largestJson(int depth) const;
};

// The costliest ones that were found, and every direction that turns, with each
// kind of neighbours, widths and places.
std::vector<CostlyCard> costlyCards();

// Up to five levels of anything, the same for the same seed.
CostlyCard randomCostlyCard(unsigned seed);

} // namespace plix::test
