// What the editor may complete at a place of a card's text.
#include "view/Completions.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace plix::test {
namespace {

using namespace tool;

// The text has a "|" at the cursor.
JsonCursor cursorIn(QString text)
{
    const int position = text.indexOf(QLatin1Char('|'));
    text.remove(position, 1);
    return jsonCursorAt(text, position);
}

std::string wordsIn(const QString& text)
{
    std::string words;
    for (const Completion& completion : completionsAt(cursorIn(text)))
        words += completion.word.toStdString() + ' ';
    return words;
}

bool offers(const QString& text, const std::string& word)
{
    return (' ' + wordsIn(text)).find(' ' + word + ' ') != std::string::npos;
}

// The text after the completion of this word.
std::string completed(const QString& text, const QString& word)
{
    QString result = text;
    result.remove(QLatin1Char('|'));
    const JsonCursor cursor = cursorIn(text);
    for (const Completion& each : completionsAt(cursor)) {
        if (each.word == word)
            return result.replace(cursor.begin, cursor.end - cursor.begin, each.text).toStdString();
    }
    return "not offered";
}

TEST(JsonCursor, KnowsNamesFromValues)
{
    using Place = JsonCursor::Place;
    EXPECT_EQ(cursorIn(QStringLiteral(R"({|})")).place, Place::Name);
    EXPECT_EQ(cursorIn(QStringLiteral(R"({"ty|)")).place, Place::Name);
    EXPECT_EQ(cursorIn(QStringLiteral(R"({"type": |})")).place, Place::Value);
    EXPECT_EQ(cursorIn(QStringLiteral(R"({"type": "bu|bble"})")).place, Place::Value);
    EXPECT_EQ(cursorIn(QStringLiteral(R"({"wrap": tr|})")).place, Place::Value);
    EXPECT_EQ(cursorIn(QStringLiteral(R"({"type"| })")).place, Place::Nowhere);
    EXPECT_EQ(cursorIn(QStringLiteral(R"({"type": "bubble"|})")).place, Place::Nowhere);
    EXPECT_EQ(cursorIn(QStringLiteral(R"({"type": "bubble", |})")).place, Place::Name);
    EXPECT_EQ(cursorIn(QStringLiteral(R"({"type": /* "|" */ 1})")).place, Place::Nowhere);
    EXPECT_EQ(cursorIn(QStringLiteral("|")).place, Place::Nowhere);
    EXPECT_EQ(cursorIn(QStringLiteral("}}|]")).place, Place::Nowhere);
}

TEST(JsonCursor, ReplacesTheWordUnderTheCursorOnly)
{
    EXPECT_EQ(completed(QStringLiteral(R"({"si|ze": "md"})"), QStringLiteral("size")),
              R"({"size": "md"})");
    EXPECT_EQ(completed(QStringLiteral(R"({"type": "bubble", "si| })"), QStringLiteral("size")),
              R"({"type": "bubble", "size": "" })");
    EXPECT_EQ(completed(QStringLiteral(R"({"size": "m|)"), QStringLiteral("mega")),
              R"({"size": "mega")");
    // The quote that is just written, and the next one, are no string.
    EXPECT_EQ(completed(QStringLiteral("{\"|\n \"size\": \"mega\"}"), QStringLiteral("body")),
              "{\"body\": {}\n \"size\": \"mega\"}");
    EXPECT_EQ(completed(QStringLiteral(R"({"| "size": "mega"})"), QStringLiteral("body")),
              R"({"body": {} "size": "mega"})");
}

TEST(JsonCursor, KnowsTheComponentAlsoIfItsTypeFollows)
{
    const QString card =
        QStringLiteral(R"({"type": "bubble", "body": {"layout": "|", "type": "box"}})");
    EXPECT_EQ(wordsIn(card), "vertical horizontal baseline ");
}

TEST(Completions, OffersTheKeysOfEachComponentButThoseItHas)
{
    const QString text = QStringLiteral(
        R"({"body": {"type": "box", "contents": [{"type": "text", "wrap": true, |}]}})");
    EXPECT_TRUE(offers(text, "maxLines"));
    EXPECT_TRUE(offers(text, "contents"));
    EXPECT_FALSE(offers(text, "wrap")) << "it has this key";
    EXPECT_FALSE(offers(text, "spacing")) << "a key of boxes";
    EXPECT_TRUE(offers(QStringLiteral(R"({"body": {"type": "box", |}})"), "spacing"));
    EXPECT_TRUE(offers(QStringLiteral("{|}"), "footer"));
    EXPECT_EQ(wordsIn(QStringLiteral(R"({"body": {|}})")), "type ");
    EXPECT_EQ(wordsIn(QStringLiteral(R"({"body": {"type": "nonsense", |}})")), "");
}

TEST(Completions, OffersTheKeysOfParts)
{
    EXPECT_TRUE(offers(QStringLiteral(R"({"action": {|}})"), "pcUri"));
    EXPECT_TRUE(offers(QStringLiteral(R"({"styles": {|}})"), "hero"));
    EXPECT_TRUE(offers(QStringLiteral(R"({"styles": {"hero": {|}}})"), "separatorColor"));
    const QString span = QStringLiteral(R"({"body": {"type": "text", "contents": [{|}]}})");
    EXPECT_TRUE(offers(span, "decoration"));
    EXPECT_FALSE(offers(span, "wrap"));
    const QString texts = QStringLiteral(R"({"body": {"type": "text", "i18nTexts": {|}}})");
    EXPECT_TRUE(offers(texts, "zh-CN"));
    EXPECT_FALSE(offers(texts, "type"));
}

TEST(Completions, OffersTheWordsOfAKey)
{
    EXPECT_TRUE(offers(QStringLiteral(R"({"size": "|"})"), "giga"));
    EXPECT_EQ(wordsIn(QStringLiteral(R"({"type": "|"})")), "bubble ");
    EXPECT_TRUE(offers(QStringLiteral(R"({"body": {"type": "|"}})"), "separator"));
    EXPECT_EQ(wordsIn(QStringLiteral(R"({"body": {"type": "text", "wrap": |}})")), "true false ");
    EXPECT_EQ(wordsIn(QStringLiteral(R"({"body": {"type": "text", "text": "|"}})")), "");
    EXPECT_EQ(wordsIn(QStringLiteral(R"({"body": {"type": "box", "contents": [|]}})")), "");
}

TEST(Completions, BeginsTheValueOfANameThatHasNone)
{
    EXPECT_EQ(
        completed(QStringLiteral(R"({"body": {"type": "box", |}})"), QStringLiteral("contents")),
        R"({"body": {"type": "box", "contents": []}})");
    EXPECT_EQ(completed(QStringLiteral(R"({"body": {"type": "text", |}})"), QStringLiteral("wrap")),
              R"({"body": {"type": "text", "wrap": }})");
}

TEST(Completions, NeedsTheTimeOfAText)
{
    // Deeply nested, and broken.
    const QString text = QStringLiteral("{\"body\": [").repeated(20'000) + QLatin1Char('"');
    EXPECT_TRUE(completionsAt(jsonCursorAt(text, text.size())).empty());
}

} // namespace
} // namespace plix::test
