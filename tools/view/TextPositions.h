#pragma once

#include <QByteArray>
#include <QVector>

namespace plix::tool {

// Converts between bytes of a UTF-8 text and characters of the same text in an editor,
// which are UTF-16 units.
class TextPositions {
public:
    TextPositions() = default;
    explicit TextPositions(const QByteArray& text);

    int toCharacter(int byte) const;
    int toByte(int character) const;

private:
    // The character of each byte, and that of the end.
    QVector<int> characters_ {0};
};

} // namespace plix::tool
