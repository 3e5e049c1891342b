#include "check/JsonParser.h"

#include "CheckedText.h"
#include "support/RowName.h"

namespace plix::test {
namespace {

struct JsonRow {
    const char* name;
    std::string card;
    std::vector<std::string> lines;
};

class JsonSlip : public testing::TestWithParam<JsonRow> { };

TEST_P(JsonSlip, IsReportedWhereItStands)
{
    EXPECT_EQ(checkedLines(GetParam().card), GetParam().lines);
}

std::string text(const std::string& value)
{
    return R"({"type":"bubble","body":{"type":"text","text":)" + value + "}}";
}

INSTANTIATE_TEST_SUITE_P(
    Rows, JsonSlip,
    testing::Values(JsonRow {"Nothing", text("\"a\""), {}},
                    JsonRow {"Comments", "// one\n/* two */" + text("\"a\"") + "// three", {}},
                    JsonRow {"Escapes", text(R"("\"\\\/\b\f\n\r\t\u00e9\ud83d\ude00")"), {}},
                    JsonRow {"CommaTooMany", text("\"a\",\n\"wrap\":true ,"), {"2:13 syntax "}},
                    JsonRow {"CommaMissing", text("\"a\"\n\"wrap\":true"), {"2:1 syntax "}},
                    JsonRow {"ColonMissing", R"({"type" "bubble"})", {"1:9 syntax "}},
                    JsonRow {"SingleQuotes", "{'type': 'bubble'}", {"1:2 syntax "}},
                    JsonRow {"OpenString", "{\"type\": \"bub\n}", {"1:10 syntax "}},
                    JsonRow {"OpenObject", R"({"type": "bubble")", {"1:18 syntax "}},
                    JsonRow {"OpenComment", text("\"a\"") + " /* b", {"1:53 syntax "}},
                    JsonRow {"UnknownWord", text("tru"), {"1:47 syntax "}},
                    JsonRow {"UnknownEscape", text(R"("\x")"), {"1:48 syntax "}},
                    JsonRow {"ControlCharacter", text("\"a\tb\""), {"1:49 syntax "}},
                    JsonRow {"NumberWithZero",
                             R"({"type":"bubble","body":{"type":"filler","flex":01}})",
                             {"1:49 syntax "}},
                    JsonRow {"NumberTooLarge",
                             R"({"type":"bubble","body":{"type":"filler","flex":1e999}})",
                             {"1:49 syntax "}},
                    JsonRow {"TextAfterTheCard", text("\"a\"") + "\n{}", {"2:1 text-after-card "}},
                    JsonRow {"KeyTwice", text("\"a\",\"text\":\"b\""), {"1:51 duplicate-key "}},
                    JsonRow {"LoneSurrogate", text(R"("a\ud83d!")"), {"1:49 lone-surrogate "}},
                    JsonRow {"SecondHalfOnly", text(R"("a\ude00!")"), {"1:49 lone-surrogate "}},
                    JsonRow {"NotUtf8", text("\"caf\xE9\""), {"1:51 invalid-utf8 "}},
                    JsonRow {"CharactersNotBytes", "{\"日本\": é}", {"1:8 syntax "}},
                    JsonRow {"TooDeep", "{\"a\":" + std::string(1100, '['), {"1:1005 syntax "}},
                    JsonRow {"AnArray", "[1]", {"1:1 not-a-card "}},
                    JsonRow {"NoType", "{}", {"1:1 not-a-card "}},
                    JsonRow {"AnotherType", R"({"type":"box"})", {"1:9 not-a-card type"}},
                    JsonRow {"Empty", "", {"1:1 syntax "}}),
    RowName());

TEST(JsonParser, ReadsOnAfterAComma)
{
    const std::string card = R"({"type":"bubble",)"
                             "\n"
                             R"("body":{"type":"text","text":"a","colour":"red",},})";
    EXPECT_EQ(checkedLines(card),
              (std::vector<std::string> {"2:34 unknown-key body.colour", "2:48 syntax ",
                                         "2:50 syntax "}));
}

TEST(JsonParser, KeepsTheValuesAndTheirPlaces)
{
    const QByteArray json = R"({"a": [1.5, "\u00e9", null, true], "a": {}})";
    tool::Findings findings;
    const auto root = tool::JsonParser(json, findings).parse();
    ASSERT_TRUE(root);
    ASSERT_EQ(root->members.size(), 2U);
    const auto& elements = root->members[0].value.elements;
    ASSERT_EQ(elements.size(), 4U);
    EXPECT_EQ(elements[0].number, 1.5);
    EXPECT_EQ(elements[1].text, "é");
    EXPECT_EQ(elements[2].kind, tool::JsonNode::Kind::Null);
    EXPECT_TRUE(elements[3].boolean);
    EXPECT_EQ(json.mid(elements[1].range.begin, elements[1].range.end - elements[1].range.begin),
              R"("\u00e9")");
    EXPECT_EQ(root->find("a"), &root->members[1]);
    EXPECT_TRUE(root->members[0].isReplaced);
}

} // namespace
} // namespace plix::test
