#pragma once

#include "CardResult.h"

namespace bench {

struct SummaryColumn {
    const char* title;
    int decimals;
    std::optional<double> (*value)(const CardResult& card);
};

struct SummaryLine {
    std::string title;
    std::vector<std::optional<double>> values;
};

const std::vector<SummaryColumn>& summaryColumns();

// A line for each card, and the medians and means of the example cards.
std::vector<SummaryLine> summaryOf(const std::vector<CardResult>& cards);

} // namespace bench
