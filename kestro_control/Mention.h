#pragma once

#include <QtGlobal>

#include <optional>

class QTextCharFormat;
class QTextFormat;

namespace kestro {

// Who is mentioned in a stretch of text, as the format of the text carries it.
struct Mention {
    bool isBot = false;
    qint64 userNo = 0;
    // Tells mentions of the same user apart.
    int id = 0;

    void WriteTo(QTextCharFormat& format) const;
    static std::optional<Mention> ReadFrom(const QTextFormat& format);
};

} // namespace kestro
