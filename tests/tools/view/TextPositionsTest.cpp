#include "view/TextPositions.h"

#include <gtest/gtest.h>

#include <QString>

namespace plix::test {
namespace {

using tool::TextPositions;

TEST(TextPositions, CountsCharactersAsTheEditorDoes)
{
    // One, two, three and four bytes; the last one is two UTF-16 units.
    const QString text = QString::fromUtf8("aéか🍲b");
    const QByteArray bytes = text.toUtf8();
    const TextPositions positions(bytes);
    for (int character = 0; character <= text.size(); ++character) {
        if (character < text.size() && text.at(character).isLowSurrogate())
            continue;
        const int byte = text.left(character).toUtf8().size();
        EXPECT_EQ(positions.toCharacter(byte), character);
        EXPECT_EQ(positions.toByte(character), byte);
    }
}

TEST(TextPositions, StaysInTheText)
{
    const TextPositions positions("abc");
    EXPECT_EQ(positions.toCharacter(-1), 0);
    EXPECT_EQ(positions.toCharacter(99), 3);
    EXPECT_EQ(positions.toByte(99), 3);
    EXPECT_EQ(TextPositions().toCharacter(5), 0);
}

} // namespace
} // namespace plix::test
