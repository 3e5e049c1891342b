#pragma once

#include <QString>

namespace bench {

struct Options {
    QString cardFolder;
    QString imageFolder;
    // A regular expression for the names of the cards.
    QString filter;
    int rounds = 0;
    // Where the results go as JSON, too. Empty: nowhere.
    QString jsonFile;
    // Where the picture of each way goes, to look at. Empty: nowhere.
    QString pictureFolder;
    // The card whose reading and building callgrind counts. Empty: none.
    QString counted;
    // Counts what is built by hand instead.
    bool countLimit = false;
};

// Ends the program after --help and for what it does not know.
Options readOptions();

} // namespace bench
