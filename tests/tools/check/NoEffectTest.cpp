#include "CheckedText.h"
#include "support/RowName.h"

namespace plix::test {
namespace {

struct NoEffectRow {
    const char* name;
    const char* body; // the top item of the body
    std::vector<std::string> paths; // of the keys without effect
};

std::vector<std::string> pathsWithoutEffect(const std::string& card)
{
    std::vector<std::string> paths;
    for (const tool::Finding& finding : tool::checkText(QByteArray::fromStdString(card)).findings) {
        if (finding.rule == tool::Rule::NoEffect)
            paths.push_back(finding.path.toStdString());
    }
    return paths;
}

class NoEffect : public testing::TestWithParam<NoEffectRow> { };

TEST_P(NoEffect, IsReported)
{
    EXPECT_EQ(
        pathsWithoutEffect(std::string(R"({"type": "bubble", "body": )") + GetParam().body + "}"),
        GetParam().paths);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, NoEffect,
    testing::Values(
        NoEffectRow {"SpacingInPixels",
                     R"({"type": "box", "layout": "vertical", "spacing": "8px"})",
                     {"body.spacing"}},
        NoEffectRow {
            "SpacingAsWord", R"({"type": "box", "layout": "vertical", "spacing": "md"})", {}},
        NoEffectRow {"MaxLinesWithoutWrap",
                     R"({"type": "text", "text": "a", "maxLines": 2})",
                     {"body.maxLines"}},
        NoEffectRow {"MaxLinesWithSpans",
                     R"({"type": "text", "wrap": true, "maxLines": 2,
                         "contents": [{"type": "span", "text": "a"}]})",
                     {"body.maxLines"}},
        NoEffectRow {"MaxLinesWithWrap",
                     R"({"type": "text", "text": "a", "wrap": true, "maxLines": 2})",
                     {}},
        NoEffectRow {
            "TextBesideSpans",
            R"({"type": "text", "text": "a", "contents": [{"type": "span", "text": "b"}]})",
            {"body.text"}},
        NoEffectRow {"MarginOfTheFirst",
                     R"({"type": "box", "layout": "vertical", "contents": [
                         {"type": "text", "text": "a", "margin": "md"},
                         {"type": "text", "text": "a", "margin": "md"}]})",
                     {"body.contents[0].margin"}},
        NoEffectRow {"PaddingOfAZone",
                     R"({"type": "box", "layout": "vertical", "paddingTop": "9px"})",
                     {"body.paddingTop"}},
        NoEffectRow {"PaddingBesideAll",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "9px",
                         "paddingTop": "9px"})",
                     {}},
        NoEffectRow {"PercentInAPaddedBox",
                     R"({"type": "box", "layout": "vertical", "contents": [
                         {"type": "text", "text": "a", "position": "absolute", "offsetTop": "9%"}]})",
                     {"body.contents[0].offsetTop"}},
        NoEffectRow {"EndBesideAFilledStart",
                     R"({"type": "box", "layout": "vertical", "contents": [
                         {"type": "text", "text": "a", "position": "absolute",
                          "offsetEnd": "9px"}]})",
                     {"body.contents[0].offsetEnd"}},
        NoEffectRow {"EndWithoutPadding",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "0px", "contents": [
                         {"type": "text", "text": "a", "position": "absolute",
                          "offsetEnd": "9px"}]})",
                     {}},
        NoEffectRow {"EndBesideStart",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "0px", "contents": [
                         {"type": "text", "text": "a", "position": "absolute",
                          "offsetStart": "9px", "offsetEnd": "9px"}]})",
                     {"body.contents[0].offsetEnd"}},
        NoEffectRow {"EndBesideAStartOfNothing",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "0px", "contents": [
                         {"type": "text", "text": "a", "position": "absolute",
                          "offsetStart": "0px", "offsetEnd": "9px"}]})",
                     {}},
        NoEffectRow {"BottomBesideTop",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "0px", "contents": [
                         {"type": "box", "layout": "vertical", "position": "absolute",
                          "height": "20px", "offsetTop": "9px", "offsetBottom": "9px"}]})",
                     {"body.contents[0].offsetBottom"}},
        NoEffectRow {"BottomOfAStretchedBox",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "0px", "contents": [
                         {"type": "box", "layout": "vertical", "position": "absolute",
                          "offsetTop": "9px", "offsetBottom": "9px"}]})",
                     {}},
        NoEffectRow {"BottomOfNothing",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "0px", "contents": [
                         {"type": "text", "text": "a", "position": "absolute",
                          "offsetBottom": "0px"}]})",
                     {"body.contents[0].offsetBottom"}},
        NoEffectRow {"EndOfNothing",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "0px", "contents": [
                         {"type": "text", "text": "a", "position": "absolute",
                          "offsetEnd": "0%"}]})",
                     {"body.contents[0].offsetEnd"}},
        NoEffectRow {"EndOfNothingOfAStretchedBox",
                     R"({"type": "box", "layout": "vertical", "paddingAll": "0px", "contents": [
                         {"type": "box", "layout": "vertical", "position": "absolute",
                          "height": "9px", "offsetEnd": "0px"}]})",
                     {}},
        NoEffectRow {"BottomOfNothingThatIsNotAbsolute",
                     R"({"type": "box", "layout": "vertical", "contents": [
                         {"type": "text", "text": "a", "offsetBottom": "0px"}]})",
                     {}},
        NoEffectRow {"GravityOfAnAbsoluteText",
                     R"({"type": "box", "layout": "vertical", "contents": [
                         {"type": "text", "text": "a", "position": "absolute",
                          "gravity": "center"}]})",
                     {"body.contents[0].gravity"}},
        NoEffectRow {"BorderWithoutColour",
                     R"({"type": "box", "layout": "vertical", "borderWidth": "light"})",
                     {"body.borderWidth"}},
        NoEffectRow {"BorderWithoutWidth",
                     R"({"type": "box", "layout": "vertical", "borderColor": "#FF0000"})",
                     {"body.borderColor"}},
        NoEffectRow {"ColourOfAnAutomaticButton",
                     R"({"type": "button", "style": "automatic", "color": "#FF0000",
                         "action": {"type": "message", "label": "a"}})",
                     {"body.color"}},
        NoEffectRow {"FlexOfAFixedBox",
                     R"({"type": "box", "layout": "horizontal", "contents": [
                         {"type": "spacer"},
                         {"type": "box", "layout": "horizontal", "flex": 2, "width": "20px"}]})",
                     {"body.contents[1].flex"}}),
    RowName());

TEST(NoEffectOfStyles, IsReported)
{
    EXPECT_EQ(pathsWithoutEffect(R"({"type": "bubble",
        "styles": {"hero": {"separator": true}, "body": {"separator": true},
                   "footer": {"separatorColor": "#FF0000", "backgroundColor": "#FF0000"}},
        "body": {"type": "text", "text": "a"},
        "footer": {"type": "box", "layout": "vertical", "backgroundColor": "#00FF00"}})"),
              (std::vector<std::string> {"styles.hero.separator", "styles.body.separator",
                                         "styles.footer.separatorColor",
                                         "styles.footer.backgroundColor"}));
}

} // namespace
} // namespace plix::test
