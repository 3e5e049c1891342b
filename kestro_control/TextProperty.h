#pragma once

#include <QTextFormat>

// What the library keeps in the formats of a text, besides Qt's own.
namespace TextProperty {

enum {
    MentionIsBot = QTextFormat::UserProperty + 1,
    MentionUserNo,
    MentionId,
    EmojiCharacters,
    EmojiPicture,
};

} // namespace TextProperty
