#pragma once

#include <string>

namespace plix::tool {

class JsonScanner;

// Reads the string whose opening quote is the scanner's current character. Returns what
// it stands for, in UTF-8.
std::string readJsonString(JsonScanner& scanner);

} // namespace plix::tool
