#include "check/Speller.h"

#include <gtest/gtest.h>

namespace plix::test {
namespace {

QString suggested(const char* word, const QStringList& allowed)
{
    return tool::probableWord(QString::fromUtf8(word), allowed);
}

TEST(Speller, FindsWhatIsCloseInLetters)
{
    const QStringList layouts {QStringLiteral("vertical"), QStringLiteral("horizontal"),
                               QStringLiteral("baseline")};
    EXPECT_EQ(suggested("verticle", layouts), QStringLiteral("vertical"));
    EXPECT_EQ(suggested("horziontal", layouts), QStringLiteral("horizontal"));
    EXPECT_EQ(suggested("Baseline ", layouts), QStringLiteral("baseline"));
    EXPECT_EQ(suggested("zigzag", layouts), QString());
    EXPECT_EQ(suggested("", layouts), QString());
    EXPECT_EQ(suggested(std::string(1000, 'v').c_str(), layouts), QString());
}

TEST(Speller, KnowsTheWordsOfOtherFormats)
{
    EXPECT_EQ(suggested("row", {QStringLiteral("vertical"), QStringLiteral("horizontal")}),
              QStringLiteral("horizontal"));
    EXPECT_EQ(suggested("url", {QStringLiteral("uri")}), QStringLiteral("uri"));
    EXPECT_EQ(suggested("uri", {QStringLiteral("url")}), QStringLiteral("url"));
    EXPECT_EQ(suggested("row", {QStringLiteral("start")}), QString());
}

} // namespace
} // namespace plix::test
