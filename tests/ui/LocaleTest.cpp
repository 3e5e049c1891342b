// A host may set any locale.
#include "layout/PlixStyleValues.h"
#include "support/ForeignNumbers.h"
#include "support/PlixTest.h"
#include "tools/LayoutDump.h"

namespace plix::test {
namespace {

using Locale = PlixTest;

// A card with a number wherever there can be one, and with numbers of the wrong type where
// any type is read.
std::string card()
{
    return bubbleWithBody(
        box("vertical",
            box("horizontal",
                text("one", R"("flex": 2.5,)") + "," + text("two", R"("flex": 1.0,)") + ","
                    + component("filler", R"("flex": 0.9,)"))
                + "," + text("many words on lines", R"("wrap": 1.5, "maxLines": 2.25e0,)") + ","
                + component("image", R"("size": "md", "aspectRatio": "1.5:1.000", "flex": 1234.5,)")
                + "," + box("vertical", "", R"("width": "33%", "height": "1000px",)") + ","
                + text("last", R"("unknown": [1.5, -1e300, 12345678.125],)")));
}

QByteArray layout()
{
    const TestCard built(card());
    return plix::tool::dumpLayout(*built.root());
}

TEST_F(Locale, DoesNotChangeACard)
{
    const QByteArray expected = layout();
    ASSERT_EQ(expected.count("PlixTextUI"), 4);
    const struct {
        char point;
        char separator;
        const char* grouping;
    } locales[] = {{',', '.', "\3"}, {',', '.', ""}, {'.', ',', "\1"}};
    for (const auto& row : locales) {
        const ForeignNumbers numbers(row.point, row.separator, row.grouping);
        EXPECT_EQ(layout(), expected) << row.point << row.separator;
    }
}

TEST_F(Locale, DoesNotChangeLogLines)
{
    const ForeignNumbers numbers;
    const TestCard built(bubbleWithBody(text("a", R"("margin": 12345.5,)")));
    EXPECT_EQ(takeLogLine(),
              "call PlixJsonDataParse::ParseText failed. "
              R"("margin" must be a string, but is the number 12345.5)");
}

TEST_F(Locale, DoesNotChangeStyleValues)
{
    const ForeignNumbers numbers;
    EXPECT_EQ(ToLengthPixels("1000px"), 1000);
    EXPECT_EQ(ToLengthPixels("1.000px"), 0);
    EXPECT_EQ(ToPercent("25%"), 25);
    EXPECT_EQ(ToCornerRadius("1234px"), 1234);
    EXPECT_EQ(ToBorderWidth("1,5px"), 0);
    EXPECT_EQ(ToAspectRatio("1.5:2.0"), 0.75F);
    EXPECT_EQ(ToAspectRatio("1000.5:1000.5"), 1.0F);
    EXPECT_EQ(ToAspectRatio("1,5:1"), 1.0F);
    EXPECT_EQ(ToAspectRatio("2.5e1:1"), 25.0F);
}

} // namespace
} // namespace plix::test
