#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace kestro {

// The code points of one emoji.
class EmojiCode {
public:
    // No longer than this; the longest emoji in use have ten code points.
    static constexpr int kMaximumCodePoints = 16;
    // In characters: code points have at most six digits.
    static constexpr int kMaximumNameLength = kMaximumCodePoints * 7 - 1;

    // From hexadecimal code points joined by "-". Nothing when they are not
    // such as emoji are made of, or when they are several emoji.
    static std::optional<EmojiCode> Read(QStringView name);

    // In upper case, without leading zeros.
    QString Name() const;

    QString Characters() const { return characters_; }

private:
    explicit EmojiCode(QString characters);

    QString characters_;
};

} // namespace kestro
