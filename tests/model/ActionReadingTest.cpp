// How actions and the language maps in them are read.
#include "model/KeyTable.h"
#include "model/PlixDataBox.h"
#include "model/PlixDataButton.h"
#include "model/PlixDataFiller.h"
#include "model/PlixDataImage.h"
#include "model/PlixDataText.h"
#include "support/PlixTest.h"

namespace plix::test {
namespace {

class ActionReading : public PlixTest { };

std::shared_ptr<const ST_ACTION> readAction(const std::string& members)
{
    std::string json = members;
    json.erase(json.find_last_not_of(", ") + 1);
    return readComponent<PlixDataImage>(R"({"type": "image", "action": {)" + json + "}}")
        ->GetAction();
}

KeyRow<ST_ACTION> field(const std::string& key, std::string ST_ACTION::*text)
{
    return {key,        "",  "\"a " + key + '"',
            "a " + key, "7", [text](const ST_ACTION& action) { return action.*text; }};
}

// A wrong map does not fail the action.
KeyRow<ST_ACTION> map(const std::string& key, PlixLanguageMap ST_ACTION::*texts)
{
    return {key,          "", R"({"xx": "1", "en": "2"})",
            "en=2;xx=1;", "", [texts](const ST_ACTION& action) { return joined(action.*texts); }};
}

TEST_F(ActionReading, ReadsEveryKey)
{
    expectTable(KeyTable<ST_ACTION> {"ParseAction",
                                     {field("type", &ST_ACTION::type),
                                      field("uri", &ST_ACTION::uri),
                                      field("pcUri", &ST_ACTION::pcUri),
                                      field("appUri", &ST_ACTION::appUri),
                                      field("androidUri", &ST_ACTION::androidUri),
                                      field("iosUri", &ST_ACTION::iosUri),
                                      field("webUri", &ST_ACTION::webUri),
                                      field("pcAuthUri", &ST_ACTION::pcAuthUri),
                                      field("label", &ST_ACTION::label),
                                      field("data", &ST_ACTION::data),
                                      field("text", &ST_ACTION::text),
                                      field("displayText", &ST_ACTION::displayText),
                                      field("mode", &ST_ACTION::mode),
                                      field("initial", &ST_ACTION::initial),
                                      field("max", &ST_ACTION::max),
                                      field("min", &ST_ACTION::min),
                                      map("i18nLabels", &ST_ACTION::i18nLabels),
                                      map("i18nTexts", &ST_ACTION::i18nTexts),
                                      map("i18nDisplayTexts", &ST_ACTION::i18nDisplayTexts),
                                      field("copyText", &ST_ACTION::copyText)},
                                     &readAction});
}

TEST_F(ActionReading, PostbackTakesPrecedenceOverData)
{
    EXPECT_EQ(readAction(R"("postback": "b")")->data, "b");
    EXPECT_EQ(readAction(R"("type": "postback", "data": "a", "postback": "b")")->data, "b");
    EXPECT_EQ(readAction(R"("data": "a", "postback": "")")->data, "");
}

TEST_F(ActionReading, PostbackIsReadBetweenDataAndText)
{
    const auto action = readAction(R"("label": "l", "data": "a", "postback": 5, "text": "t")");
    expectOneLogLine("ParseAction", {"\"postback\"", "5", "a string"});
    EXPECT_EQ(action->label, "l");
    EXPECT_EQ(action->data, "a");
    EXPECT_EQ(action->text, "");
}

TEST_F(ActionReading, TheMapsAreReadInOrder)
{
    readAction(R"("i18nDisplayTexts": 3, "i18nTexts": 2, "i18nLabels": 1)");
    expectNextLogLine("ParseMultiLang", {"\"i18nLabels\"", "1", "an object"});
    expectNextLogLine("ParseMultiLang", {"\"i18nTexts\"", "2"});
    expectOneLogLine("ParseMultiLang", {"\"i18nDisplayTexts\"", "3"});
}

TEST_F(ActionReading, KeysDoNotDependOnTheType)
{
    const auto action = readAction(R"("type": "message", "uri": "u", "data": "d")");
    EXPECT_EQ(action->type, "message");
    EXPECT_EQ(action->uri, "u");
    EXPECT_EQ(action->data, "d");
    EXPECT_EQ(readAction(R"("type": "Uri")")->type, "Uri");
}

TEST_F(ActionReading, AMapKeepsTheMembersBeforeABrokenOne)
{
    const auto action = readAction(
        R"("label": "l", "i18nLabels": {"zz": "No", "ko": 5, "en": "Yes"}, "copyText": "c")");
    expectOneLogLine("ParseMultiLang", {"\"ko\"", "5", "a string"});
    EXPECT_EQ(joined(action->i18nLabels), "en=Yes;");
    EXPECT_EQ(action->copyText, "c") << "the rest of the action is read";
}

TEST_F(ActionReading, MapsReadEveryMember)
{
    const auto action =
        readAction(R"("i18nTexts": {"fr": "oui", "": "none", "anything": null, "yes": true})");
    EXPECT_EQ(joined(action->i18nTexts), "=none;anything=;fr=oui;yes=true;");
}

TEST_F(ActionReading, TheLastOfTwoMembersOfOneNameCounts)
{
    EXPECT_EQ(readAction(R"("i18nTexts": {"en": "1", "en": "2"})")->i18nTexts.Get("en"), "2");
}

TEST_F(ActionReading, NullMapsCountAsNotGiven)
{
    const auto action =
        readAction(R"("i18nLabels": null, "i18nTexts": null, "i18nDisplayTexts": null)");
    EXPECT_EQ(joined(action->i18nLabels) + joined(action->i18nTexts)
                  + joined(action->i18nDisplayTexts),
              "");
}

TEST_F(ActionReading, AnActionThatIsNotAnObjectFailsAlone)
{
    for (const char* wrong : {"[]", "5", "true", R"("uri")"}) {
        SCOPED_TRACE(wrong);
        ReadCard card(std::string(R"({"type": "bubble", "body": {"type": "box", "action": )")
                      + wrong + R"(, "contents": [{"type": "filler"}]}})");
        EXPECT_EQ(card.result(), 0);
        expectOneLogLine("ParseAction", {"\"action\"", "an object"});
        EXPECT_EQ(card.body<PlixDataBox>()->GetContainer()->GetChildCount(), 1);
    }
}

TEST_F(ActionReading, ANullActionIsNoAction)
{
    ReadCard card(R"({"type": "bubble", "action": null})");
    EXPECT_EQ(card.result(), 0);
    EXPECT_EQ(card.bubble().GetAction(), nullptr);
}

TEST_F(ActionReading, BelongsToBubbleBoxTextImageAndButton)
{
    const std::string action = R"("action": {"type": "uri", "uri": "u"})";
    ReadCard card(bubbleWithBody(box("vertical",
                                     R"({"type": "text", )" + action + R"(}, {"type": "image", )"
                                         + action + R"(}, {"type": "button", )" + action + "}",
                                     action + ", "),
                                 action + ", "));
    EXPECT_EQ(card.bubble().GetAction()->uri, "u");
    EXPECT_EQ(card.body<PlixDataBox>()->GetAction()->uri, "u");
    EXPECT_EQ(card.body<PlixDataText>({0})->GetAction()->uri, "u");
    EXPECT_EQ(card.body<PlixDataImage>({1})->GetAction()->uri, "u");
    EXPECT_EQ(card.body<PlixDataButton>({2})->GetAction()->uri, "u");
}

TEST_F(ActionReading, AnAppOnlyActionAppliesToDescendantsWithoutLinks)
{
    const std::string below = box("vertical", R"({"type": "text"}, {"type": "filler"},
        {"type": "text", "action": {"type": "message", "text": "hi"}},
        {"type": "text", "action": {"type": "uri", "uri": "u"}})");
    const auto read = [&](const std::string& links) {
        return bubbleWithBody(box("vertical", below, R"("action": {)" + links + "}, "));
    };

    ReadCard appOnly(read(R"("appUri": "a")"));
    EXPECT_FALSE(appOnly.bubble().IsAppOnlyAction());
    EXPECT_TRUE(appOnly.body<PlixDataBox>()->IsAppOnlyAction());
    EXPECT_TRUE(appOnly.body<PlixDataBox>({0})->IsAppOnlyAction());
    EXPECT_TRUE(appOnly.body<PlixDataText>({0, 0})->IsAppOnlyAction());
    EXPECT_TRUE(appOnly.body<PlixDataFiller>({0, 1})->IsAppOnlyAction());
    EXPECT_TRUE(appOnly.body<PlixDataText>({0, 2})->IsAppOnlyAction()) << "no link of its own";
    EXPECT_FALSE(appOnly.body<PlixDataText>({0, 3})->IsAppOnlyAction());

    ReadCard both(read(R"("appUri": "a", "pcUri": "p")"));
    EXPECT_FALSE(both.body<PlixDataBox>()->IsAppOnlyAction());
    EXPECT_FALSE(both.body<PlixDataText>({0, 0})->IsAppOnlyAction());
}

} // namespace
} // namespace plix::test
