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

// Every symbol of a shared library that another module could bind to, read
// from its file; nothing when the file is no library of this platform.
std::vector<ExportedSymbol> exportedSymbols(const std::string& path);
