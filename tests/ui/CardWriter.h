#pragma once

#include <random>
#include <string>
#include <vector>

namespace plix::test {

// Writes random cards of boxes and texts, the same for the same seed.
class CardWriter {
public:
    enum class Room {
        Enough, // everything fits: items of rows can get narrower
        Any // items may need more room than there is
    };

    explicit CardWriter(unsigned seed, Room room = Room::Enough);

    std::string card();

private:
    int below(int limit);
    std::string pick(const std::vector<std::string>& words);
    std::string words(int maximum);
    std::string writeText(const std::string& layout);
    std::string writeBox(const std::string& layout, int levels);
    std::string writeChildBox(const std::string& parent, int levels);

    std::mt19937 random_;
    Room room_;
};

} // namespace plix::test
