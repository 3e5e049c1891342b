// Every key of the format, with every wrong kind and with wrong words.
#include "CheckedText.h"

#include "support/FormatPlaces.h"

namespace plix::test {
namespace {

using tool::Rule;

bool isOfKind(PlixJsonType type, const std::string& kind)
{
    switch (type) {
    case PlixJsonType::String:
        return kind == "string";
    case PlixJsonType::Integer:
        return kind == "number";
    case PlixJsonType::Boolean:
        return kind == "boolean";
    case PlixJsonType::Object:
        return kind == "object";
    case PlixJsonType::Array:
        return kind == "array";
    }
    return false;
}

// For each key of each component and part.
template <typename Function> void forEachKey(const Function& function)
{
    for (const FormatPlace& place : formatPlaces()) {
        for (const PlixFormatKey& key : place.format->keys) {
            SCOPED_TRACE(place.path + std::string(key.name));
            function(place, key);
        }
    }
}

std::vector<tool::Finding> findings(const FormatPlace& place, const PlixFormatKey& key,
                                    const std::string& value, Rule rule)
{
    std::vector<tool::Finding> found;
    for (const tool::Finding& finding :
         findingsAt(cardWith(place, key.name, value), place.path + std::string(key.name))) {
        if (finding.rule == rule)
            found.push_back(finding);
    }
    return found;
}

// The column of the value in the card, which is one line.
int columnOfValue(const FormatPlace& place, const PlixFormatKey& key)
{
    return static_cast<int>(place.before.size() + key.name.size()) + 5;
}

TEST(CheckRows, ReportsEachValueOfAWrongKindWhereItStands)
{
    forEachKey([](const FormatPlace& place, const PlixFormatKey& key) {
        for (const JsonSample& sample : kSamples) {
            SCOPED_TRACE(sample.json);
            const auto lost = findings(place, key, sample.json, Rule::WrongKind);
            ASSERT_EQ(lost.size(), takesKind(key.type, sample.kind) ? 0U : 1U);
            if (!lost.empty()) {
                EXPECT_EQ(lost.front().place.column, columnOfValue(place, key));
                EXPECT_TRUE(lost.front().message.contains(QStringLiteral("lost: ")));
            }
            const auto converted = findings(place, key, sample.json, Rule::ConvertedKind);
            const bool isConverted = !isOfKind(key.type, sample.kind)
                && takesKind(key.type, sample.kind)
                && !(key.type == PlixJsonType::Boolean && std::string(sample.kind) == "boolean");
            EXPECT_EQ(converted.size(), isConverted ? 1U : 0U);
        }
    });
}

TEST(CheckRows, ReportsEachUnknownWordWhereItStands)
{
    forEachKey([](const FormatPlace& place, const PlixFormatKey& key) {
        if (key.rule != PlixValueRule::Word)
            return;
        const auto unknown = findings(place, key, "\"qqqqqq\"", Rule::UnknownWord);
        ASSERT_EQ(unknown.size(), 1U);
        EXPECT_EQ(unknown.front().place.column, columnOfValue(place, key));
        for (const PlixFormatWord& word : key.words) {
            EXPECT_TRUE(
                unknown.front().message.contains(QString::fromStdString(std::string(word.word))));
        }
    });
}

std::string inCapitals(std::string_view word)
{
    return QString::fromStdString(std::string(word)).toUpper().toStdString();
}

TEST(CheckRows, KnowsEachWordAndNoticesItsWrongCase)
{
    forEachKey([](const FormatPlace& place, const PlixFormatKey& key) {
        if (key.part != PlixFormatPart::None)
            return;
        for (const PlixFormatWord& word : key.words) {
            SCOPED_TRACE(word.word);
            const std::string quoted = '"' + std::string(word.word) + '"';
            for (const Rule rule : {Rule::UnknownWord, Rule::WrongCase, Rule::BadLength})
                EXPECT_TRUE(findings(place, key, quoted, rule).empty());
            const std::string capitals = '"' + inCapitals(word.word) + '"';
            const auto wrong = findings(place, key, capitals, Rule::WrongCase);
            ASSERT_EQ(wrong.size(), 1U);
            EXPECT_EQ(wrong.front().mend.toStdString(), quoted);
        }
    });
}

TEST(CheckRows, ReportsEachUnreadableLengthColourAndRatio)
{
    forEachKey([](const FormatPlace& place, const PlixFormatKey& key) {
        switch (key.rule) {
        case PlixValueRule::Length:
            EXPECT_EQ(findings(place, key, "\"50%\"", Rule::BadLength).size(), 1U);
            [[fallthrough]];
        case PlixValueRule::LengthOrPercent:
            EXPECT_EQ(findings(place, key, "\"1.5px\"", Rule::BadLength).size(), 1U);
            EXPECT_TRUE(findings(place, key, "\"15px\"", Rule::BadLength).empty());
            break;
        case PlixValueRule::Color:
        case PlixValueRule::ColorAlphaLast:
            for (const char* color : {"\"reddish\"", "\"FF0000\"", "\"#12345\"", "\"#1234567\""})
                EXPECT_EQ(findings(place, key, color, Rule::BadColor).size(), 1U) << color;
            for (const char* color : {"\"red\"", "\"#FF0000\"", "\"#12345678\""})
                EXPECT_TRUE(findings(place, key, color, Rule::BadColor).empty()) << color;
            EXPECT_EQ(findings(place, key, "\"#F00\"", Rule::ShortColor).size(), 1U);
            break;
        case PlixValueRule::Ratio:
            EXPECT_EQ(findings(place, key, "\"16/9\"", Rule::BadRatio).size(), 1U);
            EXPECT_TRUE(findings(place, key, "\"16:9\"", Rule::BadRatio).empty());
            break;
        case PlixValueRule::Text:
        case PlixValueRule::Word:
        case PlixValueRule::Url:
            break;
        }
    });
}

TEST(CheckRows, ReportsNumbersThatAreChanged)
{
    forEachKey([](const FormatPlace& place, const PlixFormatKey& key) {
        if (key.type != PlixJsonType::Integer)
            return;
        for (const char* number : {"1.5", "-1"})
            EXPECT_EQ(findings(place, key, number, Rule::BadNumber).size(), 1U) << number;
        EXPECT_TRUE(findings(place, key, "2", Rule::BadNumber).empty());
    });
}

TEST(CheckRows, ReportsUnknownKeysEverywhere)
{
    for (const FormatPlace& place : formatPlaces()) {
        SCOPED_TRACE(place.path);
        const auto unknown = findingsAt(cardWith(place, "zzzzzz", "1"), place.path + "zzzzzz");
        ASSERT_EQ(unknown.size(), 1U);
        EXPECT_EQ(unknown.front().rule, Rule::UnknownKey);
        EXPECT_EQ(unknown.front().place.column, static_cast<int>(place.before.size()) + 1);
    }
}

// The slips that authors make, each in a text of its own.
TEST(CheckRows, SuggestsWhatIsMeant)
{
    const struct {
        const char* members;
        const char* path;
        const char* mend;
    } rows[] = {
        {R"("type": "text", "colour": "#FF0000")", "colour", "\"color\""},
        {R"("type": "text", "weight": "Bold")", "weight", "\"bold\""},
        {R"("type": "text", "size": "large")", "size", "\"lg\""},
        {R"("type": "text", "size": "xLarge")", "size", "\"xl\""},
        {R"("type": "text", "size": "20px")", "size", "\"lg\""},
        {R"("type": "text", "align": "right")", "align", "\"end\""},
        {R"("type": "image", "aspectMode": "contain")", "aspectMode", "\"fit\""},
        {R"("type": "box", "layout": "row")", "layout", "\"horizontal\""},
        {R"("type": "box", "layout": "verticle")", "layout", "\"vertical\""},
        {R"("type": "box", "paddingAll": 20)", "paddingAll", "\"20px\""},
        {R"("type": "text", "color": "#F00")", "color", "\"#FF0000\""},
        {R"("type": "Text")", "type", "\"text\""},
        {R"("type": "text", "maxLines": "3")", "maxLines", "3"},
        {R"("type": "text", "wrap": "True")", "wrap", "true"},
        {R"("type": "text", "wrap": "yes")", "wrap", "true"},
        {R"("type": "text", "wrap": "no")", "wrap", "false"},
        {R"("type": "text", "wrap": 1)", "wrap", "true"},
        {R"("type": "text", "wrap": "maybe")", "wrap", ""},
        {R"("type": "image", "uri": "https://example.com/a.png")", "uri", "\"url\""},
        {R"("type": "text", "action": {"type": "uri", "url": "https://example.com"})", "action.url",
         "\"uri\""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.members);
        const auto found = findingsAt(R"({"type": "bubble", "body": {"type": "box", "contents": [{)"
                                          + std::string(row.members) + "}]}}",
                                      std::string("body.contents[0].") + row.path);
        ASSERT_EQ(found.size(), 1U);
        EXPECT_EQ(found.front().mend.toStdString(), row.mend);
    }
}

} // namespace
} // namespace plix::test
