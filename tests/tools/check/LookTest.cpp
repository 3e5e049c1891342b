// What looks wrong, and the mend that a finding names.
#include "support/RowName.h"
#include "tools/ToolRun.h"

#include <gtest/gtest.h>

namespace plix::test {
namespace {

ToolResult checkCard(const QByteArray& card, const Arguments& more = {})
{
    const ToolFolder folder;
    folder.write("card.json", card);
    return folder.run(Arguments {"check", "card.json", "--strict"} + more);
}

QByteArray row(const QByteArray& contents)
{
    return R"({"type": "bubble", "body": {"type": "box", "layout": "horizontal", "contents": [)"
        + contents + "]}}";
}

struct LookRow {
    const char* name;
    QByteArray card;
    const char* code;
    const char* path;
    const char* mend;
    QByteArray mended;
};

class Look : public testing::TestWithParam<LookRow> { };

TEST_P(Look, IsReportedWithTheMendThatWorks)
{
    const ToolResult result = checkCard(GetParam().card);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_TRUE(contains(result.output, GetParam().code)) << result.output;
    EXPECT_TRUE(contains(result.output, std::string(": ") + GetParam().path + ": "))
        << result.output;
    EXPECT_TRUE(contains(result.output, GetParam().mend)) << result.output;
    const ToolResult mended = checkCard(GetParam().mended);
    EXPECT_EQ(mended.output, "");
    EXPECT_EQ(mended.exitCode, 0);
}

const char* const kTimePath = "body.contents[0].contents[0]";

// A text in a narrow column.
QByteArray narrowText(const QByteArray& text, int width, bool wrap = true)
{
    return row(R"({"type": "box", "layout": "vertical", "flex": 0, "width": ")"
               + QByteArray::number(width) + R"(px", "contents": [{"type": "text", )"
               + (wrap ? R"("wrap": true, )" : "") + R"("text": ")" + text + R"("}]})");
}

QByteArray narrowTime(int width, bool wrap)
{
    return narrowText("12:30", width, wrap);
}

QByteArray whiteBox(const QByteArray& color)
{
    return cardOf(
        R"({"type": "box", "layout": "vertical", "backgroundColor": "#FBE9E7", "contents": [
                      {"type": "text", )"
        + color + R"("text": "Due today"}]})");
}

// A box of 100 pixels with an absolute one of 20 pixels.
QByteArray pictureWith(const QByteArray& offset)
{
    return R"({"type": "bubble", "hero": {"type": "box", "layout": "vertical", "height": "100px",
               "contents": [{"type": "box", "layout": "vertical", "position": "absolute",
                             "height": "20px", "backgroundColor": "#1F2A37", "contents": [], )"
        + offset + "}]}}";
}

const QByteArray kUrl = R"("url": "https://example.com/a.png")";

INSTANTIATE_TEST_SUITE_P(
    Rows, Look,
    testing::Values(
        LookRow {"PictureThatGrows",
                 row(R"({"type": "icon", )" + kUrl
                     + R"(}, {"type": "text", "text": "Your order has been sent"})"),
                 "[text-cut]", "body.contents[1]", R"("flex": 0 in body.contents[0])",
                 row(R"({"type": "icon", "flex": 0, )" + kUrl
                     + R"(}, {"type": "text", "text": "Your order has been sent"})")},
        LookRow {"PriceBesideAColumn", row(R"({"type": "box", "layout": "vertical", "contents": [
                         {"type": "text", "text": "Headphones with a very long name, black"}]},
                     {"type": "text", "text": "129.00"})"),
                 "[no-room]", "body.contents[1]",
                 R"("width": "0px" in body.contents[0], and "flex": 0 in body.contents[1])",
                 row(R"({"type": "box", "layout": "vertical", "width": "0px", "contents": [
                         {"type": "text", "text": "Headphones with a very long name, black",
                          "wrap": true}]},
                     {"type": "text", "text": "129.00", "flex": 0})")},
        LookRow {"ThreePictures",
                 row(R"({"type": "image", "size": "lg", )" + kUrl
                     + R"(}, {"type": "image", "size": "lg", )" + kUrl
                     + R"(}, {"type": "image", "size": "lg", )" + kUrl + "}"),
                 "[outside-card]", "body.contents[2]", R"(a smaller "size")",
                 row(R"({"type": "image", "size": "sm", )" + kUrl
                     + R"(}, {"type": "image", "size": "sm", )" + kUrl
                     + R"(}, {"type": "image", "size": "sm", )" + kUrl + "}")},
        LookRow {"TimeInANarrowBox", narrowTime(40, false), "[text-cut]", kTimePath,
                 R"("12:30" needs 47 pixels, but has 40; try "width": "47px" in body.contents[0],)",
                 narrowTime(47, false)},
        LookRow {"SplitTime", narrowTime(40, true), "[word-split]", kTimePath,
                 R"(into "12:3" and "0"; it needs 47 pixels, but has 40; try "width": "47px")",
                 narrowTime(47, true)},
        LookRow {"NumberAndUnit", narrowText(R"(118\u00a0km)", 60, false), "[text-cut]", kTimePath,
                 R"(try "width": ")", narrowText(R"(118\u00a0km)", 80, false)},
        LookRow {"CaptionAtTheTop", pictureWith(R"("offsetBottom": "0px")"), "[no-effect]",
                 "hero.contents[0].offsetBottom", R"(try "offsetTop": "80px")",
                 pictureWith(R"("offsetTop": "80px")")},
        LookRow {"LastLetterOfALongWord", narrowText("Reconciliations", 110), "[word-split]",
                 kTimePath, R"(try "\u200b" in the word where it may break)",
                 narrowText(R"(Recon\u200bciliations)", 110)},
        LookRow {"NegativeMargin", cardOf(R"({"type": "text", "text": "Lunch"},
                           {"type": "text", "text": "Soup", "margin": "-12px"})"),
                 "[overlap]", "body.contents[1]", "try no negative margin",
                 cardOf(R"({"type": "text", "text": "Lunch"}, {"type": "text", "text": "Soup"})")},
        LookRow {"CutLabel", cardOf(R"({"type": "button", "style": "secondary",
                         "action": {"type": "message", "label": "Send all of it to everybody"}})"),
                 "[text-cut]", "body.contents[0]", "is shown (the button needs ",
                 cardOf(R"({"type": "button", "style": "secondary",
                         "action": {"type": "message", "label": "Send it"}})")},
        LookRow {"NoColour", whiteBox(""), "[low-contrast]", "body.contents[0].contents[0]",
                 R"try(it has no "color" (#767676 is drawn); try "color": "#1F2A37")try",
                 whiteBox(R"("color": "#1F2A37", )")},
        LookRow {"DarkOnDark",
                 cardOf(R"({"type": "box", "layout": "vertical", "backgroundColor": "#1F2A37",
                         "contents": [{"type": "text", "text": "Due today", "color": "#B23A3A"}]})"),
                 "[low-contrast]", "body.contents[0].contents[0]", R"(try "color": "#)",
                 cardOf(R"({"type": "box", "layout": "vertical", "backgroundColor": "#1F2A37",
                         "contents": [{"type": "text", "text": "Due today", "color": "#FFFFFF"}]})")},
        LookRow {"LightButton", cardOf(R"({"type": "button", "style": "primary", "color": "#F7D774",
                         "action": {"type": "message", "label": "Approve"}})"),
                 "[low-contrast]", "body.contents[0]", R"(try "color": "#)",
                 cardOf(R"({"type": "button", "style": "primary", "color": "#1E6B4C",
                         "action": {"type": "message", "label": "Approve"}})")}),
    RowName());

TEST(LookOptions, EachLanguageIsDrawn)
{
    const QByteArray card =
        R"({"type": "bubble", "size": "micro", "body": {"type": "text", "text": "Late",
            "i18nTexts": {"ko": "열차가 약 이십오 분 정도 지연되고 있습니다"}}})";
    EXPECT_EQ(checkCard(card).exitCode, 0);
    EXPECT_EQ(checkCard(card, {"--lang", "en"}).exitCode, 0);
    const ToolResult result = checkCard(card, {"--lang", "en", "--lang", "ko"});
    EXPECT_TRUE(contains(result.output, "(ko)")) << result.output;
    EXPECT_EQ(countOf(result.output, "[text-cut]"), 1);
    EXPECT_EQ(checkCard(card, {"--lang", "ko", "--no-look"}).exitCode, 0);
}

// Their colours are not the author's.
TEST(LookContrast, IsNotThatOfEmoji)
{
    const ToolResult result = checkCard(
        cardOf(R"({"type": "text", "text": "✨ Lunch ⭐ is ready 🎉💛", "color": "#1F2A37"})"));
    EXPECT_EQ(result.output, "");
}

// It is rounded down: a ratio of 4.47 is too small.
TEST(LookContrast, IsSmallerThanWhatIsNeeded)
{
    const ToolResult result =
        checkCard(cardOf(R"({"type": "box", "layout": "vertical", "backgroundColor": "#FFFFFF",
                "contents": [{"type": "text", "text": "Due today", "color": "#A8691A"}]})"));
    EXPECT_TRUE(contains(result.output, "is 4.4:1, but 4.5:1 is needed")) << result.output;
}

// A text that lies over a light and a dark part of its background.
TEST(LookContrast, IsMeasuredWordByWord)
{
    const QByteArray card =
        R"({"type": "bubble", "body": {"type": "box", "layout": "vertical", "paddingAll": "0px",
            "height": "60px", "backgroundColor": "#FFFFFF", "contents": [
              {"type": "box", "layout": "vertical", "position": "absolute", "width": "150px",
               "height": "60px", "offsetStart": "150px", "backgroundColor": "#202020",
               "contents": []},
              {"type": "text", "text": "Platform nine and three quarters", "color": "#202020",
               "position": "absolute"}]}})";
    const ToolResult result = checkCard(card);
    EXPECT_TRUE(contains(result.output, "body.contents[1]: the contrast")) << result.output;
}

} // namespace
} // namespace plix::test
