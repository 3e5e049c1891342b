#include "model/PlixJsonText.h"

#include "model/PlixJsonReals.h"

#include <json/reader.h>

namespace plix {

Json::Value ReadJsonText(const std::string& text)
{
    // Comments are not used, and the time for collecting them grows with the square
    // of their number.
    constexpr bool kCollectComments = false;
    Json::Value value;
    // Ignores the result: the value is used although the text may be malformed.
    Json::Reader().parse(WithoutDecimalPoints(text), value, kCollectComments);
    return value;
}

} // namespace plix
