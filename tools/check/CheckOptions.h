#pragma once

#include "Options.h"
#include "check/Rule.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <set>

namespace plix::tool {

enum class CheckFormat { Text, Json, Sarif };

// The arguments of "plix check".
struct CheckOptions {
    // Files, folders, and "-" for standard input.
    QStringList inputs;
    CheckFormat format = CheckFormat::Text;
    // Whether warnings fail the check, too.
    bool isStrict = false;
    bool look = true;
    std::set<Rule> allowed;
    // A card is drawn for each of them. One empty language is the default.
    QStringList languages;
    QVector<int> heights;
    CardOptions card;
    // Reads the names of files from standard input, and writes a report for each.
    bool isWorker = false;
    // All of them, for the workers.
    QStringList arguments;
};

} // namespace plix::tool
