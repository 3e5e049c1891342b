#pragma once

#include <QTextFormat>

namespace kestro {

// The library's own properties of text formats.
struct TextProperty {
    enum {
        MentionIsBot = QTextFormat::UserProperty + 1,
        MentionUserNo,
        MentionId,
        EmojiCharacters,
        EmojiPicture,
    };
};

} // namespace kestro
