// What the reader sees, and what the host gets, of strings and texts that are no proper JSON
// or no proper Unicode.
#include "ClickHost.h"

#include "support/Mouse.h"
#include "support/PlixTest.h"
#include "support/RowName.h"

#include <kestro_control/TextItem.h>

#include <ostream>

namespace plix::test {
namespace {

constexpr char kReplaced[] = "\u25A1"; // what tests write for U+FFFD

struct EdgeRow {
    const char* name;
    std::string json; // inside of a JSON string
    std::string shown;
    std::string bytes;

    friend std::ostream& operator<<(std::ostream& out, const EdgeRow& row)
    {
        return out << row.name;
    }
};

std::string withZero(const char* before, const char* after)
{
    return before + std::string(1, '\0') + after;
}

QString expected(const std::string& shown)
{
    return QString::fromStdString(shown).replace(QString::fromUtf8(kReplaced),
                                                 QString(QChar::ReplacementCharacter));
}

class JsonEdge : public PlixTest, public testing::WithParamInterface<EdgeRow> {
protected:
    // A text with an action, whose strings are those of the row.
    static std::string card()
    {
        const std::string& json = GetParam().json;
        return bubbleWithBody(
            box("vertical",
                text(json,
                     R"("action": {"type": "uri", "label": ")" + json + R"(", "uri": ")" + json
                         + R"(", "data": ")" + json + R"(", "i18nLabels": {")" + json + R"(": ")"
                         + json + R"("}},)")));
    }
};

TEST_P(JsonEdge, IsShownWithReplacementCharacters)
{
    const TestCard card(JsonEdge::card());
    const auto* item = dynamic_cast<const TextItem*>(card.item({0, 0}));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->toPlainText(), expected(GetParam().shown));
}

TEST_P(JsonEdge, ReachesTheHostAsItCame)
{
    ClickHost host;
    std::vector<ST_ACTION> actions;
    host.onAction = [&](const ST_ACTION& action) { actions.push_back(action); };
    const TestCard card(JsonEdge::card(), host.setUp());
    click(*card.root(), card.item({0, 0})->sceneBoundingRect().center());
    ASSERT_EQ(actions.size(), 1U);
    const std::string& bytes = GetParam().bytes;
    EXPECT_EQ(actions[0].uri, bytes);
    EXPECT_EQ(actions[0].label, bytes);
    EXPECT_EQ(actions[0].data, bytes);
    EXPECT_EQ(actions[0].i18nLabels.Get(bytes), bytes);
}

TEST_P(JsonEdge, IsAskedForAsItCame)
{
    std::vector<std::string> urls;
    const TestCard card(
        bubbleWithBody(component("image", R"("url": ")" + GetParam().json + R"(",)")),
        [&](PlixDataController* controller) {
            Plix_SetDownloadCallBack(
                controller,
                [](PlixDataController*, const std::string& url, void* all) {
                    static_cast<std::vector<std::string>*>(all)->push_back(url);
                    return url;
                },
                &urls);
        });
    EXPECT_EQ(urls, std::vector<std::string> {GetParam().bytes});
}

TEST_P(JsonEdge, IsOneLineInTheLog)
{
    const TestCard card(bubbleWithBody(
        component("box", R"("contents": ")" + GetParam().json + R"(", "spacing": "sm",)")));
    const std::string line = takeLogLine();
    EXPECT_EQ(line.rfind("call PlixJsonDataParse::ParseBox failed. ", 0), 0U) << line;
    EXPECT_EQ(line.find_first_of(std::string("\n\r\0\x1b", 4)), std::string::npos) << line;
    EXPECT_EQ(QString::fromStdString(line).toUtf8().toStdString(), line) << "is UTF-8";
}

INSTANTIATE_TEST_SUITE_P(
    Strings, JsonEdge,
    testing::Values(EdgeRow {"ControlCharacters",
                             "a\x01\x1b\x7f"
                             "b",
                             "a\x01\x1b\x7f"
                             "b",
                             "a\x01\x1b\x7f"
                             "b"},
                    EdgeRow {"Zero", withZero("a", "b"), withZero("a", "b"), withZero("a", "b")},
                    EdgeRow {"EscapedZero", R"(a\u0000b)", withZero("a", "b"), withZero("a", "b")},
                    EdgeRow {"NoCharacter",
                             "a\xff"
                             "b",
                             "a□b",
                             "a\xff"
                             "b"},
                    EdgeRow {"Unfinished", "a\xe2\x82", "a□□", "a\xe2\x82"},
                    EdgeRow {"LongerThanNeeded", "a\xc0\xaf", "a□□", "a\xc0\xaf"},
                    EdgeRow {"SurrogateAsUtf8", "a\xed\xa0\xbd", "a□□□", "a\xed\xa0\xbd"},
                    EdgeRow {"BeyondUnicode", "a\xf4\x90\x80\x80", "a□□□□", "a\xf4\x90\x80\x80"},
                    EdgeRow {"HalfAPair", R"(a\ud83d)", "a□", "a\xef\xbf\xbd"},
                    EdgeRow {"OtherHalf", R"(a\ude00)", "a□", "a\xef\xbf\xbd"},
                    EdgeRow {"NoncharacterOfADocument",
                             "a\xef\xb7\x90"
                             "b",
                             "a\nb",
                             "a\xef\xb7\x90"
                             "b"},
                    EdgeRow {"ByteOrderMark",
                             "\xef\xbb\xbf"
                             "a",
                             "\uFEFF"
                             "a",
                             "\xef\xbb\xbf"
                             "a"},
                    EdgeRow {"Pair", R"(\ud83d\ude00)", "😀", "😀"}),
    RowName());

// ----- The text as a whole

using JsonText = PlixTest;

TEST_F(JsonText, MayHaveAByteOrderMark)
{
    const TestCard card("\xef\xbb\xbf" + bubbleWithBody(box("vertical", text("words"))));
    EXPECT_NE(card.item({0, 0}), nullptr);
}

TEST_F(JsonText, MayBeFollowedByAnything)
{
    for (const std::string more : {" and more", "{}", "]}", "\xff\xfe"}) {
        const TestCard card(bubbleWithBody(box("vertical", text("words"))) + more);
        EXPECT_EQ(card.initResult(), 0);
        EXPECT_NE(card.item({0, 0}), nullptr) << more;
    }
}

TEST_F(JsonText, TakesTheLastOfTwoMembers)
{
    const TestCard card(
        bubbleWithBody(box("vertical", R"({"type": "text", "text": "one", "text": "other"})")));
    EXPECT_EQ(dynamic_cast<const TextItem*>(card.item({0, 0}))->toPlainText(),
              QStringLiteral("other"));
}

} // namespace
} // namespace plix::test
