#pragma once

#include "check/JsonNode.h"

#include "model/format/PlixFormat.h"

#include <QString>

#include <string_view>
#include <vector>

namespace plix::tool {

// A component in its place.
struct CardItem {
    const JsonNode& node;
    const PlixFormatComponent& format;
    QString path;
    // Null for the top item of a zone.
    const CardItem* box = nullptr;
    // In the box's contents.
    int index = 0;
    // Of a top item: "header", "hero", "body" or "footer".
    std::string_view zone;

    bool isA(std::string_view type) const { return format.type == type; }
    bool has(std::string_view key) const { return node.find(key) != nullptr; }
    // As the reader reads it: empty if there is no text.
    std::string_view text(std::string_view key) const;
    bool flag(std::string_view key) const;
    // Of a whole number; 0 if there is none.
    double number(std::string_view key) const;

    bool isAbsolute() const { return text("position") == "absolute"; }
    bool isInRow() const;
};

// What the reader makes of a string: the value of a member, or an empty text.
std::string_view textOf(const JsonNode& object, std::string_view key);

// The keys of a card that are zones, from top to bottom.
std::vector<std::string_view> zoneNames();

// The path of a member, and of an element.
QString memberPath(const QString& path, std::string_view name);
QString elementPath(const QString& path, int index);

} // namespace plix::tool
