#pragma once

#include <string>
#include <vector>

namespace plix::test {

// JSON members of a small box.
inline constexpr char kSmallSize[] = R"("width": "100px", "height": "40px",)";

// The JSON of a card whose body is a column of `items`. `more` are other members of the
// column, each followed by a comma.
std::string cardOfColumn(const std::vector<std::string>& items, const std::string& more = {});

// The markup of a mention, in JSON: mention(R"(user=\"7\")").
std::string mention(const char* who);

// One of each kind of item, with what can be clicked and what cannot.
std::string cardOfAllKinds();

// What ClickHost gets when everything in this card is clicked, in reading order.
extern const std::vector<std::string> kClickableParts;

} // namespace plix::test
