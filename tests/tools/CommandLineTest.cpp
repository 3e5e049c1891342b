#include "ToolRun.h"
#include "support/RowName.h"

#include <gtest/gtest.h>

namespace plix::test {
namespace {

struct HelpRow {
    const char* name;
    Arguments arguments;
    Arguments expected;
};

class Help : public testing::TestWithParam<HelpRow> { };

TEST_P(Help, IsPrinted)
{
    const ToolResult result = runTool(GetParam().arguments);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    for (const std::string& text : GetParam().expected) {
        EXPECT_TRUE(contains(result.output, text)) << text << "\nis missing in\n" << result.output;
    }
}

const Arguments kCardOptions {
    "--output",    "--dpi",       "--images",     "--lang",      "--from",
    "--height",    "--highlight", "--background", "--markup",    "--no-mobile-check",
    "--wrap-mode", "--text",      "Examples:",    "Exit codes:",
};

INSTANTIATE_TEST_SUITE_P(
    Tool, Help,
    testing::Values(
        HelpRow {"Tool",
                 {"--help"},
                 {"render", "layout", "gallery", "plix render receipt.json -o receipt.png",
                  "Exit codes:"}},
        HelpRow {"ToolShortly", {"-h"}, {"Commands:"}},
        HelpRow {"Render", {"render", "--help"}, Arguments {"--scale", "CARD.json"} + kCardOptions},
        HelpRow {"Layout", {"layout", "--help"}, Arguments {"standard output"} + kCardOptions},
        HelpRow {"Gallery",
                 {"gallery", "-h"},
                 Arguments {"--scale", "OUTDIR/gallery.png"} + kCardOptions},
        HelpRow {"Schema", {"schema", "--help"}, {"--output", "Examples:", "Exit codes:"}},
        HelpRow {"View", {"view", "--help"}, {"--images", "--lang", "plix view examples/cards"}},
        HelpRow {"Version", {"--version"}, {"plix " PLIX_VERSION}}),
    RowName());

class EveryOption : public testing::TestWithParam<Arguments> { };

TEST_P(EveryOption, IsAccepted)
{
    const ToolFolder folder;
    folder.write("in/card.json", cardOf(R"({"type": "text", "text": "Some words"})"));
    const ToolResult result = folder.run(
        GetParam()
        + Arguments {"--dpi", "1.5", "--images=.", "--lang", "ko", "--from", "1", "--height=200",
                     "--highlight", "some", "--highlight=words", "--background", "#80FF0000",
                     "--markup", "--no-mobile-check", "--wrap-mode", "3", "--text", "key=value"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
}

INSTANTIATE_TEST_SUITE_P(
    Tool, EveryOption,
    testing::Values(Arguments {"render", "in/card.json", "-o", "out.png", "--scale", "1.5"},
                    Arguments {"layout", "in/card.json", "--output", "out.json"},
                    Arguments {"gallery", "in", "--output", "out", "--scale=0.5"}),
    [](const auto& row) { return row.param.front(); });

struct RefusalRow {
    const char* name;
    Arguments arguments;
    std::string error;
};

class Refusal : public testing::TestWithParam<RefusalRow> { };

TEST_P(Refusal, ExitsWithTwoAndPrintsTheReason)
{
    const ToolFolder folder;
    folder.write("card.json", cardOf(""));
    const ToolResult result = folder.run(GetParam().arguments);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(result.errors.starts_with("plix: error: ")) << result.errors;
    EXPECT_TRUE(contains(result.errors, GetParam().error)) << result.errors;
    EXPECT_TRUE(contains(result.errors, "--help"));
    EXPECT_FALSE(folder.contains("out.png"));
}

Arguments render(const Arguments& options)
{
    return Arguments {"render", "card.json", "-o", "out.png"} + options;
}

RefusalRow value(const char* name, const char* option, const char* given, const char* expected)
{
    return {name, render({option, given}), std::string(option) + " must be " + expected};
}

INSTANTIATE_TEST_SUITE_P(
    Values, Refusal,
    testing::Values(
        value("ScaleIsAWord", "--scale", "big", "a number from 0.25 to 8"),
        value("ScaleIsTooSmall", "--scale", "0.2", "a number from 0.25 to 8"),
        value("ScaleIsTooLarge", "--scale", "8.5", "a number from 0.25 to 8"),
        value("ScaleIsNan", "--scale", "nan", "a number from 0.25 to 8"),
        value("DpiIsZero", "--dpi", "0", "a number from 0.01 to 16"),
        value("DpiIsInfinite", "--dpi", "inf", "a number from 0.01 to 16"),
        value("FromIsAWord", "--from", "me", "a whole number"),
        value("HeightIsNegative", "--height", "-1", "a whole number from 0 to 100000"),
        value("HeightIsAFraction", "--height", "1.5", "a whole number from 0 to 100000"),
        value("HeightIsTooLarge", "--height", "100001", "a whole number from 0 to 100000"),
        value("BackgroundIsNotAColour", "--background", "#12345", "a colour"),
        value("BackgroundIsAnUnknownName", "--background", "reddish", "a colour"),
        value("BackgroundIsEmpty", "--background", "", "a colour"),
        value("WrapModeIsNegative", "--wrap-mode", "-1", "a whole number from 0 to 4"),
        value("WrapModeIsTooLarge", "--wrap-mode", "5", "a whole number from 0 to 4"),
        value("TextHasNoEquals", "--text", "key", "KEY=VALUE"),
        value("TextHasNoKey", "--text", "=value", "KEY=VALUE")),
    RowName());

INSTANTIATE_TEST_SUITE_P(
    Usage, Refusal,
    testing::Values(
        RefusalRow {"NoCommand", {}, "a command is missing"},
        RefusalRow {"UnknownCommand", {"draw"}, "unknown command \"draw\""},
        RefusalRow {"UnknownOption", render({"--size"}), "Unknown option 'size'"},
        RefusalRow {"OptionOfAnotherCommand",
                    {"layout", "card.json", "--scale", "2"},
                    "Unknown option 'scale'"},
        RefusalRow {"ValueMissing", render({"--lang"}), "Missing value after '--lang'"},
        RefusalRow {"CardMissing", {"render", "-o", "out.png"}, "CARD.json is missing"},
        RefusalRow {"TwoCards", render({"other.json"}),
                    "only one CARD.json is allowed, but \"other.json\" follows"},
        RefusalRow {"TwoCardsToView",
                    {"view", "a.json", "b.json"},
                    "only one CARD is allowed, but \"b.json\" follows"},
        RefusalRow {"ViewWithoutADisplay", {"view"}, "the window needs a display"},
        RefusalRow {"RenderWithoutOutput", {"render", "card.json"}, "-o OUT.png is missing"},
        RefusalRow {"GalleryWithoutOutput", {"gallery", "."}, "-o OUTDIR is missing"},
        RefusalRow {
            "LayoutWithEmptyOutput", {"layout", "card.json", "-o", ""}, "-o OUT.json is missing"}),
    RowName());

} // namespace
} // namespace plix::test
