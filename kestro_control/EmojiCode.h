#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace kestro {

// The code points of one emoji.
class EmojiCode {
public:
    // The longest emoji in use have ten code points.
    static constexpr int kMaximumCodePoints = 16;
    // In characters: code points have at most six digits, with "-" between them.
    static constexpr int kMaximumNameLength = kMaximumCodePoints * 7 - 1;

    // Reads hexadecimal code points that are joined by "-". Returns nothing if
    // they do not form an emoji, or form several.
    static std::optional<EmojiCode> Read(QStringView name);

    // The code points as Read() takes them, in upper case, without leading zeros.
    QString Name() const;

    QString Characters() const { return characters_; }

private:
    explicit EmojiCode(QString characters);

    QString characters_;
};

} // namespace kestro
