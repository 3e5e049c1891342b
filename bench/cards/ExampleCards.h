#pragma once

#include "Card.h"

#include <vector>

class QString;

namespace bench {

// The cards of a folder, by name. Ends the program if there is none.
std::vector<Card> exampleCards(const QString& folder);

} // namespace bench
