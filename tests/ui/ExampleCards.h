#pragma once

#include <string>
#include <vector>

class PlixDataController;

namespace plix::test {

// The names of the cards in examples/cards, and the JSON of one of them.
std::vector<std::string> exampleNames();
std::string exampleCard(const std::string& name);

// Sets up a host that finds the images of examples/images and enables markup.
void showExamplePictures(PlixDataController* controller);

} // namespace plix::test
