#pragma once

#include <QString>

#include <vector>

namespace kestro {

// A stretch of text as the markup in it divides it.
struct MarkupRun {
    enum class Kind { Text, UserMention, BotMention, Emoji };

    Kind kind = Kind::Text;
    // As it is to be shown; of an emoji, its Unicode characters.
    QString text;
    // Of a mention: who is mentioned.
    qint64 number = 0;
    // Of an emoji: its code points, as KestroControlSupport is asked for them.
    QString emojiCode;
};

// Reads the markup that TextItem documents, in one pass: what is not part of a
// well-formed element is text. No run is empty, and no two runs of text follow
// each other.
std::vector<MarkupRun> ReadMarkup(const QString& text);

} // namespace kestro
