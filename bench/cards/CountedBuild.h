#pragma once

namespace bench {

class CardHost;
struct Card;

// Reads and builds the card a few times, and then once more in
// `benchCountedReadAndBuild`, which callgrind is told to count.
void runCountedBuild(const CardHost& host, const Card& card, bool limit);

} // namespace bench
