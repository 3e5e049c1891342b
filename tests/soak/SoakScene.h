#pragma once

namespace plix::test {

// What cards take that all live in one scene, in microseconds of the thread per card.
struct SceneTimes {
    int cards;
    double build; // and add, and paint what is in sight
    double free;
};

SceneTimes timeScene(int cards);

} // namespace plix::test
