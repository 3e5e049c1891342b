#pragma once

#include <QtGlobal>

#include <optional>

class QTextCharFormat;
class QTextFormat;

namespace kestro {

// A mention of a user or a bot, as it is stored in the format of its text.
struct Mention {
    bool isBot = false;
    qint64 userNo = 0;
    // Unique in the item, so that two mentions of the same user differ.
    int id = 0;

    void WriteTo(QTextCharFormat& format) const;
    static std::optional<Mention> ReadFrom(const QTextFormat& format);
};

} // namespace kestro
