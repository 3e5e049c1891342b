#include "ToolRun.h"

#include <gtest/gtest.h>

#include <QFile>

namespace plix::test {
namespace {

const Arguments kLayOut {"layout", "card.json"};

struct ErrorRow {
    const char* name;
    QByteArray card;
    std::string error; // "LINE:COLUMN: error: TEXT"
};

class CardError : public testing::TestWithParam<ErrorRow> { };

TEST_P(CardError, ReportsThePosition)
{
    const ToolFolder folder;
    folder.write("card.json", GetParam().card);
    const ToolResult result = folder.run(kLayOut);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "card.json:" + GetParam().error + "\n");
}

ErrorRow notAnObject(const char* name, const QByteArray& card, const char* place)
{
    return {name, card, place + std::string(": error: a card must be a JSON object")};
}

INSTANTIATE_TEST_SUITE_P(
    Root, CardError,
    testing::Values(notAnObject("Array", "[1]", "1:1"), notAnObject("String", "\"bubble\"", "1:1"),
                    notAnObject("Number", "42", "1:1"),
                    notAnObject("Words", "no card at all", "1:1"), notAnObject("Empty", "", "1:1"),
                    notAnObject("Blank", " \n\t", "2:2"),
                    notAnObject("AfterBlankLines", "\n\n  []", "3:3"),
                    notAnObject("AfterComments", "// a\n/* b */ []", "2:9"),
                    notAnObject("OnlyComments", "/* b */", "1:8"),
                    notAnObject("Binary", QByteArray("\x00\xff\xfe", 3), "1:1")),
    [](const auto& row) { return row.param.name; });

ErrorRow type(const char* name, const QByteArray& card, const char* place)
{
    return {name, card, place + std::string(": error: the \"type\" of a card must be \"bubble\"")};
}

ErrorRow noType(const char* name, const QByteArray& card, const char* place)
{
    return {name, card, place + std::string(": error: the card has no \"type\"")};
}

INSTANTIATE_TEST_SUITE_P(
    Type, CardError,
    testing::Values(noType("Missing", "{}", "1:1"),
                    noType("MissingAfterBlanks", "\n  {\"size\": \"mega\"}", "2:3"),
                    noType("OnlyFurtherDown", R"({"body": {"type": "bubble"}})", "1:1"),
                    noType("OnlyInAComment", "{/* \"type\": \"bubble\" */}", "1:1"),
                    type("AnotherWord", R"({"type": "carousel"})", "1:10"),
                    type("AnotherCase", R"({"type": "Bubble"})", "1:10"),
                    type("ANumber", "{\"size\": \"mega\",\n \"type\" :\n  5}", "3:3"),
                    type("Null", R"({"type":null})", "1:9"),
                    type("AnObject", R"({"type": {"type": "bubble"}})", "1:10"),
                    type("AfterOthersOfThatName",
                         R"({"body": {"type": "box", "x": ["type", "\"type\": {"]}, "type": "x"})",
                         "1:65"),
                    type("LastOfTwo", R"({"type": "bubble", "type": "x"})", "1:28"),
                    type("NameWithEscapes", R"({"t\u0079pe": "x"})", "1:15"),
                    type("CharactersNotBytes", R"({"name": "日本語😀é", "type": "x"})", "1:27"),
                    type("AfterAByteOrderMark", "\xEF\xBB\xBF{\"type\": 1}", "1:10"),
                    type("AfterWindowsLines", "{\r\n\"size\": \"a\",\r\n\"type\": 1}", "3:9"),
                    type("AfterAComment", "{/* 日本 */ \"type\": 1}", "1:19")),
    [](const auto& row) { return row.param.name; });

ErrorRow syntax(const char* name, const QByteArray& card, const char* error)
{
    return {name, card, error};
}

INSTANTIATE_TEST_SUITE_P(
    Syntax, CardError,
    testing::Values(
        syntax("MissingColon", "{\"type\":\n \"bubble\", \"size\" \"mega\"}",
               "2:19: error: missing name separator"),
        syntax("MissingComma", "{\"type\": \"bubble\"\n \"size\": 1}",
               "2:2: error: unterminated object"),
        syntax("CommaAtTheEnd", "{\"type\": \"bubble\",}",
               "1:19: error: object is missing after a comma"),
        syntax("NameWithoutQuotes", "{type: 1}", "1:2: error: unterminated object"),
        syntax("SingleQuotes", "{\"type\": 'bubble'}", "1:10: error: illegal number"),
        syntax("UnknownWord", "{\"type\": tru}", "1:10: error: illegal value"),
        syntax("OpenString", "{\"type\": \"bub", "1:14: error: unterminated string"),
        syntax("OpenObject", "{\"type\": \"bubble\"\n\n", "2:1: error: unterminated object"),
        syntax("OpenComment", "{\"type\": \"bubble\"} /* never closed",
               "1:20: error: garbage at the end of the document"),
        syntax("TextAfterTheCard", "{\"type\": \"bubble\"}\n x",
               "2:2: error: garbage at the end of the document"),
        syntax("NotUtf8", "{\"type\": \"b\xff\"}", "1:12: error: invalid UTF8 string"),
        syntax("CharactersNotBytes", "{\"日本\": é}", "1:8: error: illegal number"),
        syntax("WindowsLines", "{\r\n\"a\": 1,\r\n\"b\" 2}", "3:5: error: missing name separator"),
        syntax("CommentBefore", "{ // ünïcode\n /* two\nlines */ \"a\" 1}",
               "3:14: error: missing name separator"),
        syntax("CommentSignsInStrings", R"({"a": "// no /* comment", "b" 1})",
               "1:31: error: missing name separator"),
        syntax("TooDeep", "{\"a\":" + QByteArray(1100, '['),
               "1:1029: error: too deeply nested document")),
    [](const auto& row) { return row.param.name; });

TEST(CardFile, MayHaveCommentsAndAByteOrderMark)
{
    const ToolFolder folder;
    folder.write("card.json",
                 "\xEF\xBB\xBF// first\r\n"
                     + cardOf(R"(/* a text */ {"type": "text", "text": "http://a /* b */"} // end
)"));
    const ToolResult result = folder.run(kLayOut);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_TRUE(contains(result.output, "\"text\": \"http://a /* b */\"")) << result.output;
}

TEST(CardFile, ThatIsMissingIsAFileError)
{
    const ToolResult result = ToolFolder().run(kLayOut);
    EXPECT_EQ(result.exitCode, 2);
    // The text comes from the system.
    QFile missing(QStringLiteral("missing.json"));
    ASSERT_FALSE(missing.open(QIODevice::ReadOnly));
    EXPECT_EQ(result.errors, "card.json: error: " + missing.errorString().toStdString() + "\n");
}

TEST(CardFile, ThatIsAFolderIsAFileError)
{
    const ToolFolder folder;
    folder.write("card.json/inside", "");
    const ToolResult result = folder.run(kLayOut);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_TRUE(result.errors.starts_with("card.json: error: "));
}

TEST(CardFile, MayHaveAnyName)
{
    const ToolFolder folder;
    folder.write("카드 %2 é.json", "{}");
    const ToolResult result = folder.run({"layout", "카드 %2 é.json"});
    EXPECT_EQ(result.errors, "카드 %2 é.json:1:1: error: the card has no \"type\"\n");
}

TEST(CardWarnings, AreTheLibrarysLogLinesWithTheirPlaces)
{
    const ToolFolder folder;
    folder.write("card.json", cardOf("\n{\"type\": \"text\", \"text\": \"read\", \"size\": 5}"));
    const ToolResult result = folder.run(kLayOut);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors,
              "card.json:2:42: warning: body.contents[0].size: "
              "call PlixJsonDataParse::ParseText failed. "
              "\"size\" must be a string, but is the number 5\n");
    EXPECT_TRUE(contains(result.output, "\"text\": \"read\"")) << result.output;
}

// The reader does not read a card in the order of its text.
TEST(CardWarnings, NameTheRightPlacesOfSeveralLines)
{
    const ToolFolder folder;
    folder.write(
        "card.json",
        "{\"footer\": {\"type\": \"icon\", \"url\": [],\n\"size\": 1},\n"
        "\"body\": {\"type\": \"text\", \"contents\": [{\"type\": \"span\", \"text\": 7}],\n"
        "\"maxLines\": 2, \"action\": 4},\n"
        "\"action\": {\"i18nLabels\": {\"en\": \"a\", \"de\": {}}},\n"
        "\"styles\": 1, \"type\": \"bubble\"}");
    const std::vector<std::string> lines = linesOf(folder.run(kLayOut).errors);
    ASSERT_EQ(lines.size(), 3U);
    EXPECT_TRUE(lines[0].starts_with("card.json:3:64: warning: body.contents[0].text: "
                                     "call PlixJsonDataParse::ParseText failed. \"text\""))
        << lines[0];
    EXPECT_TRUE(lines[1].starts_with("card.json:2:9: warning: footer.size: "
                                     "call PlixJsonDataParse::ParseIcon failed. \"size\""))
        << lines[1];
    EXPECT_TRUE(lines[2].starts_with("card.json:6:11: warning: styles: "
                                     "call PlixJsonDataParse::ParseBubble failed. \"styles\""))
        << lines[2];
}

TEST(CardWarnings, ReportThatACardWithoutBodyCannotGrow)
{
    const ToolFolder folder;
    folder.write("card.json", R"({"type": "bubble"})");
    const ToolResult result = folder.run(kLayOut + Arguments {"--height", "50"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "card.json: warning: the card has no body that can grow\n");
}

QByteArray nestedBoxes(int depth)
{
    QByteArray card = R"({"type": "text", "text": "down here"})";
    for (int i = 0; i < depth; ++i)
        card = R"({"type": "box", "layout": "vertical", "contents": [)" + card + "]}";
    return R"({"type": "bubble", "body": )" + card + "}";
}

TEST(CardNesting, IsLaidOutAsDeepAsItIsRead)
{
    const ToolFolder folder;
    folder.write("card.json", nestedBoxes(20));
    const ToolResult layout = folder.run(kLayOut);
    EXPECT_EQ(layout.exitCode, 0);
    EXPECT_EQ(layout.errors, "");
    EXPECT_EQ(countOf(layout.output, "PlixBoxUI"), 20);
    EXPECT_TRUE(contains(layout.output, "down here"));
}

TEST(CardNesting, OfTooManyBoxesIsAWarning)
{
    const ToolFolder folder;
    folder.write("card.json", nestedBoxes(480));
    const ToolResult render = folder.run({"render", "card.json", "-o", "out.png"});
    EXPECT_EQ(render.exitCode, 0);
    EXPECT_TRUE(render.errors.starts_with("card.json:1:")) << render.errors;
    EXPECT_TRUE(contains(render.errors, "nested deeper than")) << render.errors;
    EXPECT_EQ(countOf(render.errors, "\n"), 1);
    EXPECT_TRUE(folder.contains("out.png"));
}

} // namespace
} // namespace plix::test
