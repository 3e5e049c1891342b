#include "ui/CardWork.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <string_view>

namespace plix::test {
namespace {

struct Row {
    std::string_view card;
    CardWork maximum;
};

// The counts of today, in the order of CardWork's members. Lower a count that has become
// lower; a count that becomes higher needs a reason.
constexpr Row kRows[] = {
    {"animated", {87, 12, 1087}},       {"app_only", {289, 45, 2683}},
    {"approval", {152, 16, 1662}},      {"arabic_order", {181, 28, 1665}},
    {"boarding_pass", {270, 50, 2700}}, {"box_layouts", {660, 114, 5412}},
    {"button_styles", {261, 31, 2919}}, {"coffee_shop", {128, 12, 1558}},
    {"event", {147, 12, 1722}},         {"hebrew_appointment", {121, 24, 1343}},
    {"hotel_booking", {208, 54, 2029}}, {"incident_alert", {192, 30, 2081}},
    {"languages", {61, 14, 1236}},      {"meeting_invitation", {190, 23, 1985}},
    {"mentions", {75, 22, 2155}},       {"movie_poster", {69, 4, 1009}},
    {"now_playing", {128, 12, 1428}},   {"parcel_tracking", {226, 45, 2500}},
    {"picture_fit", {495, 73, 4907}},   {"picture_sizes", {403, 72, 4435}},
    {"poll", {138, 26, 1731}},          {"poll_buttons", {35, 6, 723}},
    {"product", {98, 18, 1394}},        {"queue_ticket", {31, 8, 424}},
    {"receipt", {365, 48, 2883}},       {"restaurant_menu", {165, 42, 1783}},
    {"room_sensor", {75, 12, 856}},     {"salary_slip", {204, 42, 2134}},
    {"size_words", {1200, 128, 9801}},  {"text_styles", {110, 57, 2343}},
    {"travel", {152, 24, 1737}},        {"weather", {289, 32, 2267}},
    {"weather_icons", {284, 44, 2770}},
};

} // namespace

CardWork maximumWork(const std::string& card)
{
    const auto found = std::find_if(std::begin(kRows), std::end(kRows),
                                    [&card](const Row& row) { return row.card == card; });
    if (found != std::end(kRows))
        return found->maximum;
    ADD_FAILURE() << card << " needs a row in CardWork.cpp";
    return {};
}

} // namespace plix::test
