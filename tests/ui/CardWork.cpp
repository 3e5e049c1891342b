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
    {"animated", {87, 12, 1094}},       {"app_only", {289, 45, 2849}},
    {"approval", {152, 16, 1737}},      {"arabic_order", {181, 28, 1697}},
    {"boarding_pass", {270, 50, 2807}}, {"box_layouts", {660, 114, 5685}},
    {"button_styles", {261, 31, 3281}}, {"coffee_shop", {128, 12, 1598}},
    {"event", {147, 12, 1798}},         {"hebrew_appointment", {121, 24, 1386}},
    {"hotel_booking", {208, 54, 2110}}, {"incident_alert", {192, 30, 2167}},
    {"languages", {61, 14, 1247}},      {"meeting_invitation", {190, 23, 2076}},
    {"mentions", {75, 22, 2151}},       {"movie_poster", {69, 4, 1040}},
    {"now_playing", {128, 12, 1491}},   {"parcel_tracking", {226, 45, 2603}},
    {"picture_fit", {495, 73, 5122}},   {"picture_sizes", {403, 72, 4516}},
    {"poll", {138, 26, 1805}},          {"poll_buttons", {35, 6, 805}},
    {"product", {98, 18, 1450}},        {"queue_ticket", {31, 8, 433}},
    {"receipt", {365, 48, 2968}},       {"restaurant_menu", {165, 42, 1861}},
    {"room_sensor", {75, 12, 884}},     {"salary_slip", {204, 42, 2204}},
    {"size_words", {1200, 128, 10330}}, {"text_styles", {110, 57, 2433}},
    {"travel", {152, 24, 1839}},        {"weather", {289, 32, 2327}},
    {"weather_icons", {284, 44, 2844}},
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
