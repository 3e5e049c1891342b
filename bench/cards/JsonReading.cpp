#include "JsonReading.h"

#include <json/json.h>

#include <exception>

namespace bench {

void parseJson(const std::string& text)
{
    constexpr bool collectComments = false;
    Json::Value value;
    if (!Json::Reader().parse(text, value, collectComments))
        std::terminate();
}

} // namespace bench
