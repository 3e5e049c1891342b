#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plix::test {

// What a fuzzer can be run on. Each function takes the bytes of one input, and leaves
// nothing behind but what the library keeps by design.
struct FuzzTarget {
    const char* name;
    void (*run)(std::string_view bytes);
};

// All targets. Null if there is none of that name.
const std::vector<FuzzTarget>& fuzzTargets();
const FuzzTarget* findFuzzTarget(std::string_view name);

// The JSON of cards: read, but not built.
void fuzzReader(std::string_view bytes);
// Layout nodes: every setter with hard numbers, and the words of a card.
void fuzzStyle(std::string_view bytes);
// One text: markup, line limits, painting, selecting, highlighting.
void fuzzText(std::string_view bytes);
// The file of a picture: painted twice, in two sizes.
void fuzzPicture(std::string_view bytes);
// The whole way of a card, from its JSON to Plix_Free. The bytes are what a user and a
// host do with the card, a NUL byte, and the JSON.
void fuzzCard(std::string_view bytes);
// Sequences of all exports, with callbacks that call, free and throw.
void fuzzCalls(std::string_view bytes);

// The input of fuzzCard changed in one place. Keys and values are mostly those that the
// reader knows.
std::string mutateCard(const std::string& input, unsigned seed);

} // namespace plix::test
