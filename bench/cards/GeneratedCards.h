#pragma once

#include "Card.h"

#include <vector>

namespace bench {

// 16 wrapped texts of 50 characters on a "kilo" bubble.
Card sixteenTexts();

// Of 10, 100 and 1,000 elements, and one with boxes nested as deep as they may be.
std::vector<Card> generatedCards();

} // namespace bench
