#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace plix::tool {

// A place as editors show it, counted in characters from 1.
struct TextPlace {
    int line = 1;
    int column = 1;
};

TextPlace placeAt(const QByteArray& text, int offset);

// Tells where the parts of a card stand in its text, which has no comments any
// more. Meant for error messages, so it copes with any bytes; it is exact for
// texts that are JSON.
class JsonPosition {
public:
    explicit JsonPosition(const QByteArray& text);

    // The offset of the first character that is not blank; the text's size when
    // there is none.
    int start() const;

    // The offset of the value of the root object's member `name`. Of several
    // members of that name it is the last one, which is also the one that
    // counts when the text is read.
    std::optional<int> rootMember(const QString& name) const;

private:
    bool isNamed(int begin, int end, const QString& name) const;

    QByteArray text_;
};

} // namespace plix::tool
