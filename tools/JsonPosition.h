#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace plix::tool {

// A position as editors show it: line and column, in characters from 1.
struct TextPlace {
    int line = 1;
    int column = 1;
};

TextPlace placeAt(const QByteArray& text, int offset);

// Finds parts of a card in its text, for error messages. The text must not contain
// comments. It may be malformed; the result is exact for valid JSON only.
class JsonPosition {
public:
    explicit JsonPosition(const QByteArray& text);

    // The offset of the first character that is not blank; the text's size if
    // there is none.
    int start() const;

    // The offset of the value of the root object's member `name`. If several
    // members have this name, it is the last one, which the reader uses, too.
    std::optional<int> rootMember(const QString& name) const;

private:
    bool isNamed(int begin, int end, const QString& name) const;

    QByteArray text_;
};

} // namespace plix::tool
