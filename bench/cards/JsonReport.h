#pragma once

#include "CardResult.h"

#include <QString>

namespace bench {

// Writes the rows of all cards' tables to a file. Ends the program if it cannot.
void writeJsonReport(const QString& path, int rounds, const std::vector<CardResult>& cards);

} // namespace bench
