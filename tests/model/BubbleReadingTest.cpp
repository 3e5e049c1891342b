// How the bubble's own keys are read: zones, styles, and wrong values.
#include "model/KeyTable.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDataText.h"
#include "model/PlixZoneStyle.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

class BubbleReading : public PlixTest { };

// The bubble of a card. The result keeps the whole card alive.
std::shared_ptr<const PlixDataBubble> readBubble(const std::string& members)
{
    const auto card = std::make_shared<ReadCard>('{' + members + R"("type": "bubble"})");
    return {card, &card->bubble()};
}

template <typename Zone>
KeyRow<PlixDataBubble> zoneRow(const std::string& key,
                               std::shared_ptr<Zone> (PlixDataBubble::*zone)() const)
{
    return {key,
            "",
            R"({"type": "text", "text": ")" + key + "\"}",
            key,
            "",
            [zone](const PlixDataBubble& bubble) {
                const auto text =
                    std::dynamic_pointer_cast<PlixDataText>((bubble.*zone)()->GetChild(0));
                return text ? text->GetText() : "";
            }};
}

TEST_F(BubbleReading, ReadsEveryKey)
{
    using Bubble = PlixDataBubble;
    const KeyTable<Bubble> table {
        "ParseBubble",
        {textRow<Bubble>("direction", &Bubble::GetDirection),
         textRow<Bubble>("size", &Bubble::GetSize),
         zoneRow("header", &Bubble::GetHeader),
         zoneRow("hero", &Bubble::GetHero),
         zoneRow("body", &Bubble::GetBody),
         zoneRow("footer", &Bubble::GetFooter),
         {"styles", "", R"({"hero": {"separatorColor": "red"}})", "red", "7",
          [](const Bubble& bubble) { return bubble.GetZones()[1].style.separatorColor; }},
         actionRow<Bubble>()},
        &readBubble};
    expectTable(table);
}

TEST_F(BubbleReading, AWrongKeyFailsTheBubble)
{
    for (const char* member :
         {R"("direction": 5)", R"("size": 5)", R"("styles": [])", R"("styles": {"body": 5})",
          R"("styles": {"hero": {"backgroundColor": 5}})"}) {
        SCOPED_TRACE(member);
        ReadCard card(std::string(R"({"type": "bubble", )") + member + "}");
        EXPECT_EQ(card.result(), -1);
        EXPECT_EQ(card.manager().GetMessageType(), "bubble");
        expectOneLogLine("ParseBubble");
    }
}

TEST_F(BubbleReading, AWrongComponentDoesNotFailTheBubble)
{
    for (const char* member :
         {R"("body": 5)", R"("action": 5)", R"("body": {"type": "text", "margin": 5})"}) {
        SCOPED_TRACE(member);
        ReadCard card(std::string(R"({"type": "bubble", )") + member + "}");
        EXPECT_EQ(card.result(), 0);
        EXPECT_EQ(pendingLogLines(), 1);
        ignoreLog();
    }
}

TEST_F(BubbleReading, HasFourEmptyZonesByDefault)
{
    ReadCard card(R"({"type": "bubble"})");
    for (const auto& zone : card.bubble().GetZones()) {
        ASSERT_NE(zone.container, nullptr);
        EXPECT_EQ(zone.container->GetChildCount(), 0);
    }
}

TEST_F(BubbleReading, AnyComponentCanBeAZone)
{
    const struct {
        const char* word;
        int kind;
    } rows[] = {{"image", 2},  {"box", 3},    {"text", 4},   {"icon", 5},
                {"button", 6}, {"spacer", 7}, {"filler", 8}, {"separator", 9}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.word);
        ReadCard card(std::string(R"({"type": "bubble", "hero": {"type": ")") + row.word + "\"}}");
        ASSERT_EQ(card.bubble().GetHero()->GetChildCount(), 1);
        const auto item = card.bubble().GetHero()->GetChild(0);
        EXPECT_EQ(item->GetType(), row.kind);
        EXPECT_EQ(item->GetIndex(), 0);
        EXPECT_EQ(item->GetParent(), card.manager().GetBubble());
    }
}

TEST_F(BubbleReading, AZoneOfAnUnknownTypeStaysEmpty)
{
    for (const char* zone :
         {"null", "{}", R"({"type": "span"})", R"({"type": "bubble"})", R"({"type": "Box"})",
          R"({"type": 3})", R"({"type": null})", R"({"contents": [{"type": "text"}]})"}) {
        SCOPED_TRACE(zone);
        ReadCard card(std::string(R"({"type": "bubble", "body": )") + zone + "}");
        EXPECT_EQ(card.result(), 0);
        EXPECT_EQ(card.bubble().GetBody()->GetChildCount(), 0);
    }
}

TEST_F(BubbleReading, AZoneThatIsNotAnObjectFailsAlone)
{
    for (const char* zone : {"[]", R"([{"type": "box"}])", R"("box")", "5", "1.5", "true"}) {
        SCOPED_TRACE(zone);
        ReadCard card(std::string(R"({"type": "bubble", "header": )") + zone
                      + R"(, "footer": {"type": "box"}, "action": {"label": "Go"}})");
        EXPECT_EQ(card.result(), 0);
        expectOneLogLine("ParseZone", {"\"header\"", "an object"});
        EXPECT_EQ(card.bubble().GetHeader()->GetChildCount(), 0);
        EXPECT_EQ(card.bubble().GetFooter()->GetChildCount(), 1);
        ASSERT_NE(card.bubble().GetAction(), nullptr);
    }
}

TEST_F(BubbleReading, ZonesAreReadFromTopToBottom)
{
    ReadCard card(R"({"type": "bubble", "footer": 4, "body": 3, "hero": 2, "header": 1})");
    for (const char* zone : {"\"header\"", "\"hero\"", "\"body\"", "\"footer\""})
        expectNextLogLine("ParseZone", {zone});
}

TEST_F(BubbleReading, EveryStyleGoesToItsZone)
{
    const char* const zones[] = {"header", "hero", "body", "footer"};
    for (std::size_t i = 0; i < std::size(zones); ++i) {
        SCOPED_TRACE(zones[i]);
        ReadCard card(std::string(R"({"type": "bubble", "styles": {")") + zones[i]
                      + R"(": {"backgroundColor": "#11223344", "separator": true,
                              "separatorColor": "#55667788"}, "side": {"separator": true}}})");
        const auto all = card.bubble().GetZones();
        for (std::size_t zone = 0; zone < all.size(); ++zone) {
            const PlixZoneStyle& style = all[zone].style;
            EXPECT_EQ(style.backgroundColor, zone == i ? "#11223344" : "");
            EXPECT_EQ(style.separator, zone == i);
            EXPECT_EQ(style.separatorColor, zone == i ? "#55667788" : "");
        }
    }
}

TEST_F(BubbleReading, SeparatorAcceptsAnyValue)
{
    const struct {
        const char* json;
        bool expected;
    } rows[] = {{R"("yes")", true}, {R"("false")", true}, {R"("")", false}, {"true", true},
                {"false", false},   {"1", true},          {"0", false},     {"null", false},
                {"[1]", true},      {"{}", false}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.json);
        ReadCard card(std::string(R"({"type": "bubble", "styles": {"body": {"separator": )")
                      + row.json + "}}}");
        EXPECT_EQ(card.result(), 0);
        EXPECT_EQ(card.bubble().GetBodyStyle().separator, row.expected);
    }
}

TEST_F(BubbleReading, StylesAreReadInOrder)
{
    ReadCard colour(R"({"type": "bubble", "styles": {
        "header": {"backgroundColor": "red"},
        "hero": {"backgroundColor": 5, "separator": true, "separatorColor": "red"},
        "body": {"backgroundColor": "red"}}})");
    expectOneLogLine("ParseBubble", {"\"backgroundColor\"", "5"});
    EXPECT_EQ(colour.bubble().GetHeaderStyle().backgroundColor, "red");
    EXPECT_FALSE(colour.bubble().GetHeroStyle().separator);
    EXPECT_EQ(colour.bubble().GetHeroStyle().separatorColor, "");
    EXPECT_EQ(colour.bubble().GetBodyStyle().backgroundColor, "");

    ReadCard separatorColour(R"({"type": "bubble", "styles": {
        "body": {"backgroundColor": "red", "separator": true, "separatorColor": {}},
        "footer": {"separator": true}}})");
    expectOneLogLine("ParseBubble", {"\"separatorColor\"", "an object"});
    EXPECT_EQ(separatorColour.bubble().GetBodyStyle().backgroundColor, "red");
    EXPECT_TRUE(separatorColour.bubble().GetBodyStyle().separator);
    EXPECT_FALSE(separatorColour.bubble().GetFooterStyle().separator);
}

TEST_F(BubbleReading, NullStylesCountAsNotGiven)
{
    EXPECT_EQ(ReadCard(R"({"type": "bubble", "styles": null})").result(), 0);
    ReadCard card(R"({"type": "bubble", "styles": {"header": null,
                                                  "hero": {"separator": true}}})");
    EXPECT_EQ(card.result(), 0);
    EXPECT_TRUE(card.bubble().GetHeroStyle().separator);
}

TEST_F(BubbleReading, WordsAreStoredAsWritten)
{
    ReadCard card(R"({"type": "bubble", "size": "no size", "direction": "up"})");
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(card.bubble().GetSize(), "no size");
    EXPECT_EQ(card.bubble().GetWidth(), 300);
    EXPECT_EQ(card.bubble().GetDirection(), "up");
}

} // namespace
} // namespace plix::test
