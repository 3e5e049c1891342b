#pragma once

#include "CardResult.h"

#include <QTextStream>

namespace bench {

// The results as tables, for people.
class TextReport {
public:
    TextReport();

    void writeHead(int rounds);
    void writeCard(const CardResult& card);
    // What the cards have come to, in units of the limit.
    void writeSummary(const std::vector<CardResult>& cards);

private:
    void writeTitles(const CardResult& card);
    void writeWarnings(const CardResult& card);

    QTextStream out_;
};

} // namespace bench
