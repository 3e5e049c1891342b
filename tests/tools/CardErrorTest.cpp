#include "ToolRun.h"
#include "support/RowName.h"

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

INSTANTIATE_TEST_SUITE_P(Root, CardError,
                         testing::Values(notAnObject("Array", "[1]", "1:1"),
                                         notAnObject("String", "\"bubble\"", "1:1"),
                                         notAnObject("Number", "42", "1:1"),
                                         notAnObject("AfterBlankLines", "\n\n  []", "3:3"),
                                         notAnObject("AfterComments", "// a\n/* b */ []", "2:9")),
                         RowName());

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
    RowName());

ErrorRow syntax(const char* name, const QByteArray& card, const char* place, const char* error)
{
    return {name, card, place + std::string(": error: ") + error};
}

const char* const kColonNeeded = "a colon after the key is needed here";
const char* const kValueNeeded = "a value is needed here";
const char* const kValueMissing = "the text ends, but a value is needed";

INSTANTIATE_TEST_SUITE_P(
    Syntax, CardError,
    testing::Values(
        syntax("Words", "no card at all", "1:1", kValueNeeded),
        syntax("Binary", QByteArray("\x00\xff\xfe", 3), "1:1", kValueNeeded),
        syntax("Empty", "", "1:1", kValueMissing), syntax("Blank", " \n\t", "2:2", kValueMissing),
        syntax("OnlyComments", "/* b */", "1:8", kValueMissing),
        syntax("MissingColon", "{\"type\":\n \"bubble\", \"size\" \"mega\"}", "2:19", kColonNeeded),
        syntax("MissingComma", "{\"type\": \"bubble\"\n \"size\": 1}", "2:2",
               "a comma is missing before this"),
        syntax("CommaAtTheEnd", "{\"type\": \"bubble\",}", "1:18",
               "this comma is too many: nothing follows it"),
        syntax("NameWithoutQuotes", "{type: 1}", "1:2", "a key in double quotes is needed here"),
        syntax("SingleQuotes", "{\"type\": 'bubble'}", "1:10", kValueNeeded),
        syntax("UnknownWord", "{\"type\": tru}", "1:10", kValueNeeded),
        syntax("OpenString", "{\"type\": \"bub", "1:10", "the closing quote is missing"),
        syntax("OpenObject", "{\"type\": \"bubble\"\n\n", "3:1",
               "the text ends, but a comma or \"}\" is needed"),
        syntax("OpenComment", "{\"type\": \"bubble\"} /* never closed", "1:20",
               "this comment does not end"),
        syntax("TextAfterTheCard", "{\"type\": \"bubble\"}\n x", "2:2",
               "the card ends before this text"),
        syntax("NotUtf8", "{\"type\": \"bubble\", \"a\": \"b\xff\"}", "1:27",
               "the byte 0xff is not UTF-8; save the file as UTF-8"),
        syntax("CharactersNotBytes", "{\"日本\": é}", "1:8", kValueNeeded),
        syntax("WindowsLines", "{\r\n\"a\": 1,\r\n\"b\" 2}", "3:5", kColonNeeded),
        syntax("CommentBefore", "{ // ünïcode\n /* two\nlines */ \"a\" 1}", "3:14", kColonNeeded),
        syntax("CommentSignsInStrings", R"({"a": "// no /* comment", "b" 1})", "1:31",
               kColonNeeded),
        syntax("TooDeep", "{\"a\":" + QByteArray(1100, '['), "1:1005",
               "the JSON is nested deeper than 1000 levels")),
    RowName());

// The first slip in the text is reported, whatever else is found before it.
TEST(CardFile, ThatHasSeveralSlipsIsRefusedForTheFirstOne)
{
    const ToolFolder folder;
    folder.write("card.json", "{\"type\": \"bubble\",, \"a\": \"\xff\"}");
    EXPECT_EQ(folder.run(kLayOut).errors,
              "card.json:1:19: error: a key in double quotes is needed here\n");
}

// The library reads them as other parsers do.
TEST(CardFile, MayHaveAKeyTwiceAndHalfACharacter)
{
    const ToolFolder folder;
    folder.write(
        "card.json",
        R"({"type": "box", "type": "bubble", "body": {"type": "text", "text": "\ud83d"}})");
    EXPECT_EQ(folder.run(kLayOut).exitCode, 0);
}

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

// The box of the body is an item, too.
TEST(CardWarnings, NameTheFirstItemThatIsLeftOut)
{
    const QByteArray separators = QByteArray("{\"type\": \"separator\"},\n").repeated(2499);
    const ToolFolder folder;
    folder.write("card.json",
                 R"({"type": "bubble", "styles": 1, "body": {"type": "box", "contents": [)"
                 "\n" + separators
                     + R"({"type": "text", "size": 5}, {"type": "icon", "size": 5}]}})");
    const std::vector<std::string> lines = linesOf(folder.run(kLayOut).errors);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0],
              "card.json:2501:1: warning: body.contents[2499]: call PlixJsonDataParse::ParseBox "
              "failed. The card has more than 2500 items.");
    EXPECT_TRUE(lines[1].starts_with("card.json:1:30: warning: styles: ")) << lines[1];
}

TEST(CardFile, ThatIsTooLargeIsRefused)
{
    const ToolFolder folder;
    folder.write("card.json", R"({"type": "bubble"})" + QByteArray(2097152, ' '));
    const ToolResult result = folder.run(kLayOut);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.errors,
              "card.json:1:1: error: the card has 2097170 bytes, but at most 2097152 are read; "
              "lost: the whole card\n");
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
