#include "model/PlixJsonText.h"

#include "model/PlixJsonReals.h"

#include <json/reader.h>

namespace plix {

Json::Value ReadJsonText(const std::string& text)
{
    // Comments are not used, and the time for collecting them grows with the square
    // of their number.
    constexpr bool kCollectComments = false;
    const std::string rewritten = MayHaveReals(text) ? WithoutDecimalPoints(text) : std::string();
    const std::string& json = rewritten.empty() ? text : rewritten;
    Json::Value value;
    // Pointers, because the parser copies a string. Ignores the result: the value is
    // used although the text may be malformed.
    Json::Reader().parse(json.data(), json.data() + json.size(), value, kCollectComments);
    return value;
}

} // namespace plix
