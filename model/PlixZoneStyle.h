#pragma once

#include <string>

// The style of a zone, from the key "styles".
struct PlixZoneStyle {
    std::string backgroundColor;
    bool separator = false;
    std::string separatorColor;

    void SetBackgroundColor(const std::string& color) { backgroundColor = color; }
    void SetSeparator(bool on) { separator = on; }
    void SetSeparatorColor(const std::string& color) { separatorColor = color; }
};
