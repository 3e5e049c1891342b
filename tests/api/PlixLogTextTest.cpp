#include "api/PlixLogText.h"

#include <gtest/gtest.h>

namespace {

QString logText(const std::u16string& text, int maxLength = 40)
{
    return plix::ToLogText(QString::fromStdU16String(text), maxLength);
}

TEST(PlixLogText, EscapesInvisibleCharacters)
{
    const struct {
        std::u16string text;
        const char* shown;
    } rows[] = {
        {u"a\nb", "a\\nb"},
        {u"a\r\nb", "a\\u000d\\nb"},
        {std::u16string(u"a\0b", 3), "a\\u0000b"},
        {u"\t\x1B[31m", "\\u0009\\u001b[31m"},
        {u"\u007F\u0085\u009B", "\\u007f\\u0085\\u009b"},
        {u"\u2028\u2029", "\\u2028\\u2029"},
        {u"\u202E\u2066\u200F\u061C\uFEFF", "\\u202e\\u2066\\u200f\\u061c\\ufeff"},
    };
    for (const auto& row : rows)
        EXPECT_EQ(logText(row.text), QString::fromLatin1(row.shown));
}

TEST(PlixLogText, KeepsAllOtherCharacters)
{
    for (const std::u16string text :
         {u"", u"plain \"text\" \\n", u"caf\u00E9 \uD55C\uAE00 \u05D0\u0301 \U0001F600", u"\u00A0"})
        EXPECT_EQ(logText(text), QString::fromStdU16String(text));
}

TEST(PlixLogText, CutsTheTextBeforeItEscapes)
{
    EXPECT_EQ(logText(u"abcd", 4), QStringLiteral("abcd"));
    EXPECT_EQ(logText(u"abcde", 4), QStringLiteral("abcd..."));
    EXPECT_EQ(logText(u"abc\U0001F600", 4), QStringLiteral("abc..."));
    EXPECT_EQ(logText(u"\n\n\n\n\n", 4), QStringLiteral("\\n\\n\\n\\n..."));
}

} // namespace
