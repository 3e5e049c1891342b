#pragma once

#include "CardResult.h"

#include <functional>

namespace bench {

// One line of a card's table.
struct Row {
    const char* title;
    int decimals;
    std::function<std::optional<double>(const WayResult& way, const CardResult& card)> value;
};

// Of all cards' tables.
const std::vector<Row>& allRows();

// What a way took for all of the steps together.
std::optional<double> sumOf(const WayResult& way, const std::vector<Step>& steps);

} // namespace bench
