// The log lines of the reader, and the results of its operations.
#include "model/PlixDataBox.h"
#include "model/PlixDataText.h"
#include "model/PlixJsonDataParse.h"
#include "model/ReadCard.h"
#include "support/PlixTest.h"

#include <json/reader.h>

namespace plix::test {
namespace {

class ReaderLog : public PlixTest { };

TEST_F(ReaderLog, EveryOperationLogsItsFailure)
{
    const auto body = [](const std::string& component) { return R"("body": )" + component; };
    const struct {
        const char* behaviour;
        std::string members;
        int result;
        const char* operation;
        const char* reason;
    } rows[] = {
        {"bubble", R"("size": 5)", -1, "ParseBubble",
         R"("size" must be a string, but is the number 5)"},
        {"zone", body("5"), 0, "ParseZone", R"("body" must be an object, but is the number 5)"},
        {"box", body(R"({"type": "box", "width": 5})"), 0, "ParseBox",
         R"("width" must be a string, but is the number 5)"},
        {"text", body(R"({"type": "text", "maxLines": "3"})"), 0, "ParseText",
         R"("maxLines" must be a whole number, but is the string "3")"},
        {"image", body(R"({"type": "image", "url": {}})"), 0, "ParseImage",
         R"("url" must be a string, but is an object)"},
        {"icon", body(R"({"type": "icon", "url": []})"), 0, "ParseIcon",
         R"("url" must be a string, but is an array)"},
        {"spacer", body(R"({"type": "spacer", "size": 8})"), 0, "ParseSpacer",
         R"("size" must be a string, but is the number 8)"},
        {"filler", body(R"({"type": "filler", "flex": "1"})"), 0, "ParseFiller",
         R"("flex" must be a whole number, but is the string "1")"},
        {"button", body(R"({"type": "button", "height": 50})"), 0, "ParseButton",
         R"("height" must be a string, but is the number 50)"},
        {"separator", body(R"({"type": "separator", "margin": 5})"), 0, "ParseSeparator",
         R"("margin" must be a string, but is the number 5)"},
        {"action", R"("action": {"uri": []})", 0, "ParseAction",
         R"("uri" must be a string, but is an array)"},
        {"languages", R"("action": {"i18nLabels": {"ko": 5}})", 0, "ParseMultiLang",
         R"("ko" must be a string, but is the number 5)"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        ReadCard card(R"({"type": "bubble", )" + row.members + "}");
        EXPECT_EQ(card.result(), row.result);
        EXPECT_EQ(takeLogLine(),
                  std::string("call PlixJsonDataParse::") + row.operation + " failed. "
                      + row.reason);
        EXPECT_EQ(pendingLogLines(), 0);
    }
}

TEST_F(ReaderLog, AFailureOfTheParserIsLogged)
{
    ReadCard card(std::string(5000, '['));
    EXPECT_EQ(card.result(), -1);
    const std::string line = takeLogLine();
    const std::string prefix = "call PlixJsonDataParse::Parse failed. ";
    EXPECT_EQ(line.substr(0, prefix.size()), prefix);
    EXPECT_GT(line.size(), prefix.size());
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(ReaderLog, ACardWithoutErrorsLogsNothing)
{
    ReadCard card(R"({"type": "bubble", "size": "kilo", "unknown": 1,
        "header": {"type": "text", "text": "Title"},
        "body": {"type": "box", "layout": "vertical", "contents": [{"type": "unheard of"}]}})");
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(ReaderLog, QuotationsAreShortAndValidText)
{
    ReadCard card(R"({"type": "bubble", "body": {"type": "filler", "flex": ")"
                  + std::string(100000, 'x') + "\"}}");
    EXPECT_LT(takeLogLine().size(), 200U);
    ReadCard invalid(
        "{\"type\": \"bubble\", \"body\": {\"type\": \"filler\", \"flex\": \"\xFF\"}}");
    const std::string line = takeLogLine();
    EXPECT_EQ(QString::fromStdString(line).toStdString(), line);
    EXPECT_EQ(line.find('\xFF'), std::string::npos);
}

// The author of a card must not be able to forge log lines.
TEST_F(ReaderLog, QuotationsContainNoLineEnds)
{
    const struct {
        const char* behaviour;
        std::string members;
        const char* operation;
        const char* reason;
    } rows[] = {
        {"a line end in a value", R"("body": {"type": "filler", "flex": "a\ncall b failed. "})",
         "ParseFiller", R"("flex" must be a whole number, but is the string "a\ncall b failed. ")"},
        {"a zero byte in a value", R"("body": {"type": "filler", "flex": "a\u0000b"})",
         "ParseFiller", R"("flex" must be a whole number, but is the string "a\u0000b")"},
        {"a line end in a language code", R"("action": {"i18nLabels": {"k\no": 5}})",
         "ParseMultiLang", R"("k\no" must be a string, but is the number 5)"},
        {"a zero byte in a language code", R"("action": {"i18nLabels": {"k\u0000o": 5}})",
         "ParseMultiLang", R"("k\u0000o" must be a string, but is the number 5)"},
        {"text that runs backwards", R"("body": {"type": "filler", "flex": "\u202Eb\u2028"})",
         "ParseFiller", R"("flex" must be a whole number, but is the string "\u202eb\u2028")"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        ReadCard card(R"({"type": "bubble", )" + row.members + "}");
        EXPECT_EQ(takeLogLine(),
                  std::string("call PlixJsonDataParse::") + row.operation + " failed. "
                      + row.reason);
        EXPECT_EQ(pendingLogLines(), 0);
    }
    ReadCard card(R"({"type": "bubble", "action": {"i18nLabels": {")" + std::string(100'000, 'k')
                  + R"(": 5}}})");
    EXPECT_LT(takeLogLine().size(), 200U);
}

// The reader's operations, called one by one.
TEST_F(ReaderLog, OperationsReturnZeroOrMinusOne)
{
    const auto parsed = [](const std::string& json) {
        Json::Value value;
        Json::Reader().parse(json, value);
        return value;
    };
    PlixJsonDataParse parse;
    const auto text = std::make_shared<PlixDataText>();
    EXPECT_EQ(parse.ParseText(parsed(R"({"text": "t"})"), text), 0);
    EXPECT_EQ(text->GetText(), "t");
    EXPECT_EQ(parse.ParseText(parsed(R"({"size": 5})"), text), -1);
    expectOneLogLine("ParseText");

    ST_ACTION action;
    EXPECT_EQ(parse.ParseAction({"action", parsed(R"({"uri": "u"})")}, action), 0);
    EXPECT_EQ(parse.ParseAction({"action", parsed(R"({"uri": 5})")}, action), -1);
    expectOneLogLine("ParseAction");
    EXPECT_EQ(action.uri, "u");

    PlixLanguageMap texts;
    EXPECT_EQ(parse.ParseMultiLang({"texts", parsed(R"({"en": "e"})")}, texts), 0);
    EXPECT_EQ(parse.ParseMultiLang({"texts", parsed(R"({"en": 5})")}, texts), -1);
    expectOneLogLine("ParseMultiLang");
    EXPECT_EQ(texts.Get("en"), "e");

    const auto container = std::make_shared<PlixDataContainer>();
    EXPECT_EQ(parse.ParseZone({"body", parsed(R"({"type": "text"})")}, container), 0);
    EXPECT_EQ(parse.ParseZone({"body", parsed("[]")}, container), -1);
    expectOneLogLine("ParseZone");
    EXPECT_EQ(container->GetChildCount(), 1);

    const auto bubble = std::make_shared<PlixDataBubble>();
    EXPECT_EQ(parse.ParseBubble(parsed(R"({"size": "giga"})"), bubble), 0);
    EXPECT_EQ(parse.ParseBubble(parsed(R"({"size": 5})"), bubble), -1);
    expectOneLogLine("ParseBubble");
    EXPECT_EQ(bubble->GetSize(), "giga");
}

// An item of the wrong class must not throw into the caller.
TEST_F(ReaderLog, AnItemOfAnotherClassFailsTheOperation)
{
    PlixJsonDataParse parse;
    EXPECT_EQ(parse.ParseText(Json::Value(Json::objectValue), std::make_shared<PlixDataBox>()), -1);
    expectOneLogLine("ParseText");
}

} // namespace
} // namespace plix::test
