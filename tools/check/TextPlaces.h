#pragma once

#include <QByteArray>

namespace plix::tool {

// A position as editors show it: line and column, in characters from 1.
struct TextPlace {
    int line = 1;
    int column = 1;
};

// The lines and columns of offsets in a text. It is fast for offsets in increasing
// order: it counts from the last one on.
class TextPlaces {
public:
    explicit TextPlaces(const QByteArray& text);

    TextPlace at(int offset);

private:
    const QByteArray& text_;
    int offset_ = 0;
    TextPlace place_;
};

} // namespace plix::tool
