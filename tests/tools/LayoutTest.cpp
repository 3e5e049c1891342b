#include "ToolRun.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace plix::test {
namespace {

// What `plix layout` prints for the card with these options.
QJsonObject layoutOf(const QByteArray& card, const Arguments& options = {})
{
    const ToolFolder folder;
    folder.write("card.json", card);
    const ToolResult result = folder.run(Arguments {"layout", "card.json"} + options);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.errors, "");
    QJsonParseError error;
    const QJsonDocument document =
        QJsonDocument::fromJson(QByteArray::fromStdString(result.output), &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << error.errorString().toStdString();
    return document.object();
}

QJsonArray childrenOf(const QJsonObject& item)
{
    return item.value(QLatin1String("children")).toArray();
}

QJsonObject child(const QJsonObject& item, int index = 0)
{
    return childrenOf(item).at(index).toObject();
}

QJsonObject bodyText(const QByteArray& component, const Arguments& options = {})
{
    return child(child(layoutOf(cardOf(component), options)));
}

std::string stringOf(const QJsonObject& item, const char* name)
{
    return item.value(QLatin1String(name)).toString().toStdString();
}

std::string textOf(const QJsonObject& item)
{
    return stringOf(item, "text");
}

double numberOf(const QJsonObject& item, const char* name)
{
    return item.value(QLatin1String(name)).toDouble(-1);
}

TEST(Layout, ShowsTheTreeOfItems)
{
    const QJsonObject card = layoutOf(cardOf(
        R"({"type": "text", "text": "one"}, {"type": "separator"},
            {"type": "text", "text": "two"})"));
    EXPECT_EQ(stringOf(card, "type"), "PlixBubbleUI");
    EXPECT_EQ(numberOf(card, "x"), 0);
    EXPECT_EQ(numberOf(card, "y"), 0);
    EXPECT_EQ(numberOf(card, "width"), 300);

    const QJsonObject body = child(card);
    EXPECT_EQ(stringOf(body, "type"), "PlixBoxUI");
    EXPECT_EQ(numberOf(body, "height"), numberOf(card, "height"));
    ASSERT_EQ(childrenOf(body).size(), 3);
    EXPECT_EQ(textOf(child(body, 0)), "one");
    EXPECT_EQ(stringOf(child(body, 1), "type"), "PlixSeparatorUI");
    EXPECT_EQ(numberOf(child(body, 1), "height"), 1);
    EXPECT_EQ(textOf(child(body, 2)), "two");
    EXPECT_TRUE(childrenOf(child(body, 2)).isEmpty());
}

TEST(Layout, ShowsTheTextAndItsLines)
{
    const QJsonObject whole =
        bodyText(R"({"type": "text", "text": "a \"b\"\\é\u0001", "size": "xl"})");
    EXPECT_EQ(textOf(whole), "a \"b\"\\é\u0001");
    EXPECT_EQ(numberOf(whole, "fontSize"), 22);
    EXPECT_EQ(numberOf(whole, "lines"), 1);
    EXPECT_FALSE(whole.contains(QLatin1String("elided")));

    const QByteArray words = QByteArray("word ").repeated(40);
    const QJsonObject elided =
        bodyText(R"({"type": "text", "wrap": true, "maxLines": 2, "text": ")" + words + "\"}");
    EXPECT_EQ(numberOf(elided, "lines"), 2);
    EXPECT_TRUE(elided.value(QLatin1String("elided")).toBool());
}

TEST(Layout, HasOneLineForEachItem)
{
    const ToolFolder folder;
    folder.write("card.json", cardOf(R"({"type": "filler"}, {"type": "spacer"})"));
    const std::vector<std::string> lines = linesOf(folder.run({"layout", "card.json"}).output);
    ASSERT_GE(lines.size(), 4u);
    EXPECT_TRUE(lines.at(0).starts_with("{\"type\": \"PlixBubbleUI\", \"x\": 0"));
    EXPECT_TRUE(lines.at(1).starts_with("  {\"type\": \"PlixBoxUI\", \"x\": "));
    EXPECT_TRUE(lines.at(2).starts_with("    {\"type\": \"PlixFillerUI\", \"x\": "));
    EXPECT_TRUE(lines.at(3).starts_with("    {\"type\": \"PlixSpacerUI\", \"x\": "));
}

TEST(Layout, IsTheSameInAFileAndOnStandardOutput)
{
    const ToolFolder folder;
    folder.write("card.json", cardOf(R"({"type": "text", "text": "일"})"));
    const Arguments arguments {"layout", "card.json"};
    const ToolResult shown = folder.run(arguments);
    const ToolResult written = folder.run(arguments + Arguments {"-o", "out.json"});
    EXPECT_EQ(written.exitCode, 0);
    EXPECT_EQ(written.output, "");
    EXPECT_EQ(folder.read("out.json").toStdString(), shown.output);
    EXPECT_TRUE(contains(shown.output, "\"일\""));
}

TEST(LayoutOptions, LangChoosesTheTexts)
{
    const QByteArray text = R"({"type": "text", "text": "plain",
        "i18nTexts": {"en": "English", "ko": "한국어", "default": "other"}})";
    EXPECT_EQ(textOf(bodyText(text)), "English");
    EXPECT_EQ(textOf(bodyText(text, {"--lang", "ko"})), "한국어");
    EXPECT_EQ(textOf(bodyText(text, {"--lang=ja"})), "other");
}

TEST(LayoutOptions, HeightMakesTheCardHigher)
{
    const QByteArray card = cardOf(R"({"type": "text", "text": "low"})");
    const QJsonObject grown = layoutOf(card, {"--height", "400"});
    EXPECT_EQ(numberOf(grown, "height"), 400);
    const QJsonObject same = layoutOf(card, {"--height", "1"});
    EXPECT_LT(numberOf(same, "height"), 100);
}

TEST(LayoutOptions, MobileCheckShowsTheHostsWording)
{
    const QByteArray text = R"({"type": "text", "text": "Open the app",
        "action": {"type": "uri", "appUri": "app://open"}})";
    const Arguments wording {"--text", "chat_room_check_on_mobile=See your=phone 폰"};
    EXPECT_EQ(textOf(bodyText(text, wording)), "See your=phone 폰");
    EXPECT_EQ(textOf(bodyText(text, {"--no-mobile-check"})), "Open the app");
}

TEST(LayoutOptions, TextMayBeGivenSeveralTimes)
{
    const QByteArray text =
        R"({"type": "text", "text": "x", "action": {"type": "uri", "iosUri": "app://open"}})";
    const Arguments wordings {"--text", "another_key=no", "--text",
                              "chat_room_check_on_mobile=yes"};
    EXPECT_EQ(textOf(bodyText(text, wordings)), "yes");
}

TEST(LayoutOptions, WrapModeDecidesWhereLinesBreak)
{
    const QByteArray text =
        R"({"type": "text", "wrap": true, "text": ")" + QByteArray(200, 'w') + " end\"}";
    const double anywhere = numberOf(bodyText(text), "lines");
    const double atWords = numberOf(bodyText(text, {"--wrap-mode", "1"}), "lines");
    EXPECT_GT(anywhere, atWords);
    EXPECT_EQ(atWords, 2);
}

TEST(LayoutOptions, DpiDoesNotChangeTheLayout)
{
    const QByteArray card = cardOf(R"({"type": "text", "text": "any"})");
    EXPECT_EQ(layoutOf(card, {"--dpi", "2.5"}), layoutOf(card));
}

} // namespace
} // namespace plix::test
