#include "model/PlixJsonText.h"

#include "model/PlixJsonReals.h"
#include "model/PlixJsonSurrogates.h"

#include <json/reader.h>

#include <string_view>

namespace plix {

namespace {

// Some editors write a byte-order mark in front of a text.
std::string_view WithoutByteOrderMark(std::string_view text)
{
    constexpr std::string_view kMark = "\xEF\xBB\xBF";
    return text.starts_with(kMark) ? text.substr(kMark.size()) : text;
}

} // namespace

Json::Value ReadJsonText(const std::string& text)
{
    // Comments are not used, and the time for collecting them grows with the square
    // of their number.
    constexpr bool kCollectComments = false;
    std::string_view json = WithoutByteOrderMark(text);
    std::string rewritten;
    if (MayHaveReals(json))
        json = rewritten = WithoutDecimalPoints(json);
    if (MayHaveSurrogates(json))
        json = rewritten = WithoutLoneSurrogates(std::string(json));
    Json::Value value;
    // Pointers, because the parser copies a string. Ignores the result: the value is
    // used although the text may be malformed.
    Json::Reader().parse(json.data(), json.data() + json.size(), value, kCollectComments);
    return value;
}

} // namespace plix
