#pragma once

#include <QString>

#include <vector>

namespace kestro {

// A part of a text with markup: plain text or one element.
struct MarkupRun {
    enum class Kind { Text, UserMention, BotMention, Emoji };

    Kind kind = Kind::Text;
    // The text to show; for an emoji, its Unicode characters.
    QString text;
    // For a mention: the number of the user or bot.
    qint64 number = 0;
    // For an emoji: its code points, as KestroControlSupport takes them.
    QString emojiCode;
};

// Whether the text may have an element or an entity. ReadMarkup() returns any other
// text unchanged, in one run.
bool MayHaveMarkup(const QString& text);

// Reads the markup that TextItem.h describes, in linear time. Everything outside of
// well-formed elements is text. No run is empty, and no two text runs follow each
// other.
std::vector<MarkupRun> ReadMarkup(const QString& text);

} // namespace kestro
