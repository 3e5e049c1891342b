// Which messages are read as cards.
#include "model/PlixDataText.h"
#include "model/ReadCard.h"
#include "support/ForeignNumbers.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

class RootReading : public PlixTest { };

void expectNothingRead(ReadCard& card)
{
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(card.manager().GetMessageType(), "");
    EXPECT_EQ(card.bubble().GetSize(), "");
    for (const auto& zone : card.bubble().GetZones()) {
        ASSERT_NE(zone.container, nullptr);
        EXPECT_EQ(zone.container->GetChildCount(), 0);
    }
    EXPECT_EQ(pendingLogLines(), 0);
}

TEST_F(RootReading, MessagesThatAreNotBubblesAreIgnored)
{
    const struct {
        const char* behaviour;
        std::string json;
    } rows[] = {
        {"nothing", ""},
        {"blanks", " \n\t"},
        {"not JSON", "hello"},
        {"half a JSON", R"({"size": "giga", "type)"},
        {"zero bytes", std::string(4, '\0')},
        {"bytes that are not UTF-8", "\xFF\xFE\x80"},
        {"no type", R"({"size": "giga", "body": {"type": "box"}})"},
        {"another case", R"({"type": "Bubble", "size": "giga", "body": {"type": "box"}})"},
        {"a blank after the word", R"({"type": "bubble ", "size": "giga"})"},
        {"another word", R"({"type": "carousel", "size": "giga"})"},
        {"a component", R"({"type": "box", "contents": [{"type": "text"}]})"},
        {"an empty type", R"({"type": "", "size": "giga"})"},
        {"a type that is a number", R"({"type": 1, "size": "giga"})"},
        {"a type that is null", R"({"type": null, "size": "giga"})"},
        {"a type that is an array", R"({"type": ["bubble"], "size": "giga"})"},
        {"an array", R"([{"type": "bubble", "size": "giga"}])"},
        {"a string", R"("bubble")"},
        {"a number", "5"},
        {"a boolean", "true"},
        {"null", "null"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.behaviour);
        ReadCard card(row.json);
        expectNothingRead(card);
    }
}

TEST_F(RootReading, ABubbleSetsTheMessageType)
{
    ReadCard card(R"({"type": "bubble"})");
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(card.manager().GetMessageType(), "bubble");
}

TEST_F(RootReading, CommentsAreAllowed)
{
    ReadCard card("// a card\n{\"type\": \"bubble\", /* wide */ \"size\": \"giga\"}");
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(card.bubble().GetSize(), "giga");
}

// The parser's result is ignored; what it has parsed is read.
TEST_F(RootReading, TextAfterTheCardIsIgnored)
{
    ReadCard card(R"({"type": "bubble", "size": "giga"} trailing)");
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(card.bubble().GetSize(), "giga");
}

TEST_F(RootReading, AnIncompleteCardIsReadUpToTheError)
{
    for (const char* rest : {"", ", \"footer\": {\"type\": \"te", ", footer}", "]", "]}"}) {
        SCOPED_TRACE(rest);
        ReadCard card(R"({"type": "bubble", "size": "giga", "body": {"type": "text", "text": "a"})"
                      + std::string(rest));
        EXPECT_EQ(card.result(), 0);
        EXPECT_EQ(card.manager().GetMessageType(), "bubble");
        EXPECT_EQ(card.bubble().GetSize(), "giga");
        ASSERT_EQ(card.bubble().GetBody()->GetChildCount(), 1);
        EXPECT_EQ(card.body<PlixDataText>()->GetText(), "a");
        EXPECT_EQ(card.bubble().GetFooter()->GetChildCount(), 0);
    }
}

TEST_F(RootReading, NumbersDoNotDependOnTheLocale)
{
    std::string contents = R"({"type": "text", "flex": 2.5})";
    for (int i = 1; i < 10; ++i)
        contents += R"(, {"type": "text", "flex": 1.500})";
    const ForeignNumbers numbers;
    ReadCard card(R"({"type": "bubble", "body": {"type": "box", "contents": [)" + contents + "]}}");
    EXPECT_EQ(card.result(), 0);
    ASSERT_EQ(card.body<PlixDataBox>()->GetContainer()->GetChildCount(), 10);
    EXPECT_EQ(card.body<PlixDataText>({0})->GetGrow(), 2);
    EXPECT_EQ(card.body<PlixDataText>({9})->GetGrow(), 1);
}

TEST_F(RootReading, NestingBeyondTheParsersLimitFails)
{
    std::string contents = R"({"type": "text"})";
    for (int i = 0; i < 2000; ++i)
        contents = R"({"type": "box", "contents": [)" + contents + "]}";
    ReadCard card(R"({"type": "bubble", "body": )" + contents + "}");
    EXPECT_EQ(card.result(), -1);
    EXPECT_EQ(card.manager().GetMessageType(), "");
    expectOneLogLine("Parse");
}

TEST_F(RootReading, ManyUnclosedBracketsFail)
{
    ReadCard card(std::string(100000, '['));
    EXPECT_EQ(card.result(), -1);
    expectOneLogLine("Parse");
}

TEST_F(RootReading, ASecondMessageIsReadOnTopOfTheFirst)
{
    ReadCard card(R"({"type": "bubble", "size": "giga", "direction": "rtl",
                      "body": {"type": "text", "margin": "md"}})");
    const auto bubble = card.manager().GetBubble();
    EXPECT_EQ(card.manager().InitData(R"({"type": "bubble", "size": "nano",
                                          "body": {"type": "box"}})"),
              0);
    EXPECT_EQ(card.manager().GetBubble(), bubble) << "the bubble never changes";
    EXPECT_EQ(bubble->GetSize(), "nano");
    EXPECT_EQ(bubble->GetDirection(), "rtl");
    ASSERT_EQ(bubble->GetBody()->GetChildCount(), 2);
    EXPECT_EQ(bubble->GetBody()->GetChild(0)->GetType(), 4);
    EXPECT_EQ(bubble->GetBody()->GetChild(1)->GetType(), 3);
}

TEST_F(RootReading, AMessageThatIsNotACardChangesNothing)
{
    ReadCard card(R"({"type": "bubble", "size": "giga"})");
    EXPECT_EQ(card.manager().InitData("nonsense"), 0);
    EXPECT_EQ(card.bubble().GetSize(), "giga");
    EXPECT_EQ(card.manager().GetMessageType(), "bubble");
}

} // namespace
} // namespace plix::test
