#pragma once

#include <random>
#include <string>
#include <vector>

namespace plix::test {

// Writes random cards that show everything that can be painted: backgrounds, borders,
// corners, separators, texts, buttons and the images of examples/images, on top of each
// other. The same card for the same seed.
class PaintedCardWriter {
public:
    explicit PaintedCardWriter(unsigned seed);

    std::string card();

private:
    int below(int limit);
    std::string pick(const std::vector<std::string>& words);
    std::string anyOf(const char* key, const std::vector<std::string>& values);
    std::string looks();
    std::string words();
    std::string writeItem(int levels);
    std::string writeText();
    std::string writeImage(const std::string& type);
    std::string writeBox(int levels);

    std::mt19937 random_;
};

} // namespace plix::test
