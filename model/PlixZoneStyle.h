#pragma once

#include <string>

// How a zone is painted: the keys of "styles".
struct PlixZoneStyle {
    std::string backgroundColor;
    bool separator = false;
    std::string separatorColor;

    void SetBackgroundColor(const std::string& color) { backgroundColor = color; }
    void SetSeparator(bool on) { separator = on; }
    void SetSeparatorColor(const std::string& color) { separatorColor = color; }
};
