#pragma once

#include <QTextFormat>

// The library's own properties of text formats.
namespace kestro::TextProperty {

enum {
    MentionIsBot = QTextFormat::UserProperty + 1,
    MentionUserNo,
    MentionId,
    EmojiCharacters,
    EmojiPicture,
};

} // namespace kestro::TextProperty
