#pragma once

#include <string>
#include <vector>

namespace plix::test {

// A level of a card that is costly to lay out: its box, and the JSON of the components that
// are in it before and after the box of the next level.
struct CostlyLevel {
    std::string layout;
    std::string members; // of the box, each followed by a comma
    std::vector<std::string> before;
    std::vector<std::string> after;
};

// Nested boxes. `levels` are those of the outermost boxes, and repeat inside.
struct CostlyCard {
    std::string name;
    std::vector<CostlyLevel> levels;
    bool rightToLeft = false;

    // `width`: how often each level repeats its components before and after the box.
    std::string json(int depth, int width = 1) const;
    // With the largest width that fits into 64 KB.
    std::string largestJson(int depth) const;
};

// The costliest cards that are known, and cards of every sequence of directions with each
// kind of neighbours, widths and positions.
std::vector<CostlyCard> costlyCards();

// A card of up to five random levels, the same for the same seed.
CostlyCard randomCostlyCard(unsigned seed);

} // namespace plix::test
