#pragma once

#include <optional>
#include <string>
#include <vector>

struct ExportedSymbol {
    std::string name; // empty for a symbol that has only a number
    bool isFunction;
    // Counted from 1, where the format of the library numbers its exports.
    std::optional<int> ordinal;
};

// Reads the exported symbols from the file of a shared library. Empty if the file is
// not a library of this platform.
std::vector<ExportedSymbol> exportedSymbols(const std::string& path);
