#pragma once

#include <string>
#include <vector>

class PlixDataController;

namespace plix::test {

// The cards of examples/cards, by their names.
std::vector<std::string> exampleNames();
std::string exampleCard(const std::string& name);

// A host that knows the pictures of examples/images and enables markup.
void showExamplePictures(PlixDataController* controller);

} // namespace plix::test
