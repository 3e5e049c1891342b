#pragma once

#include <string>
#include <string_view>

// The style of a zone, from the key "styles".
struct PlixZoneStyle {
    std::string backgroundColor;
    bool separator = false;
    std::string separatorColor;

    void SetBackgroundColor(std::string_view color) { backgroundColor = color; }
    void SetSeparator(bool on) { separator = on; }
    void SetSeparatorColor(std::string_view color) { separatorColor = color; }
};
