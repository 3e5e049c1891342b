#include "model/PlixJsonText.h"

#include "model/PlixJsonReals.h"

#include <json/reader.h>

namespace plix {

Json::Value ReadJsonText(const std::string& text)
{
    // Nobody reads comments, and the time to collect them grows with the square
    // of their number.
    constexpr bool kCollectComments = false;
    Json::Value value;
    // Whether all of the text was understood does not count.
    Json::Reader().parse(WithoutDecimalPoints(text), value, kCollectComments);
    return value;
}

} // namespace plix
