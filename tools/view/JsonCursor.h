#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace plix::tool {

// An object or array around a position in a JSON text.
struct JsonScope {
    QString key; // that it is the value of; of an element, that of its array
    bool isArray = false;
    QString type; // the value of "type"
    QStringList names; // of its members
};

// What may be written at a position of a JSON text, which may be broken.
struct JsonCursor {
    enum class Place { Nowhere, Name, Value };

    Place place = Place::Nowhere;
    // The part of the text that a completion replaces, in characters.
    int begin = 0;
    int end = 0;
    // Without quotes, and what of it is before the position.
    QString word;
    QString prefix;
    // Of a name: whether a value follows.
    bool hasColon = false;
    // Of a value: the name before it; empty in an array.
    QString name;
    std::vector<JsonScope> scopes; // the outermost first
};

JsonCursor jsonCursorAt(const QString& text, int position);

} // namespace plix::tool
