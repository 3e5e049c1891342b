#include "model/format/PlixFormat.h"

#include "model/ReadCard.h"
#include "support/ExpectedLog.h"
#include "support/FormatPlaces.h"
#include "support/PlixTest.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace plix::test {
namespace {

class PlixFormat : public PlixTest { };

TEST_F(PlixFormat, HasTheKindThatTheReaderNeeds)
{
    for (const FormatPlace& place : formatPlaces()) {
        for (const PlixFormatKey& key : place.format->keys) {
            for (const JsonSample& sample : kSamples) {
                SCOPED_TRACE(place.path + std::string(key.name) + ": " + sample.json);
                ReadCard(cardWith(place, key.name, sample.json));
                EXPECT_EQ(takeLogLine().empty(), takesKind(key.type, sample.kind));
                EXPECT_EQ(pendingLogLines(), 0);
            }
        }
    }
}

// A key after one of the wrong kind is read only if the part is read by itself.
TEST_F(PlixFormat, KnowsWhichPartsAreReadByThemselves)
{
    for (const FormatPlace& place : formatPlaces()) {
        for (const PlixFormatKey& key : place.format->keys) {
            const PlixFormatKey& last = place.format->keys.back();
            if (key.part == PlixFormatPart::None || &key == &last)
                continue;
            SCOPED_TRACE(place.path + std::string(key.name));
            const std::string later = '"' + std::string(last.name) + "\": 1e15, ";
            ReadCard(place.before + '"' + std::string(key.name) + "\": 7, " + later + place.after);
            EXPECT_NE(takeLogLine(), "");
            EXPECT_EQ(pendingLogLines(), IsReadByItself(key.part) ? 1 : 0);
            ignoreLog();
        }
    }
}

TEST_F(PlixFormat, DescribesEachKeyOnce)
{
    for (const FormatPlace& place : formatPlaces()) {
        std::set<std::string_view> names;
        EXPECT_FALSE(place.format->keys.empty());
        for (const PlixFormatKey& key : place.format->keys) {
            SCOPED_TRACE(place.path + std::string(key.name));
            EXPECT_TRUE(names.insert(key.name).second);
            EXPECT_TRUE(key.description.ends_with('.'));
            if (key.rule == PlixValueRule::Word) {
                EXPECT_FALSE(key.words.empty());
            }
            EXPECT_EQ(FindKeyFormat(*place.format, key.name), &key);
        }
    }
}

TEST_F(PlixFormat, SaysWhatEachWordStandsFor)
{
    for (const FormatPlace& place : formatPlaces()) {
        for (const PlixFormatKey& key : place.format->keys) {
            for (const PlixFormatWord& word : key.words)
                EXPECT_NE(word.pixels.has_value(), !word.meaning.empty())
                    << key.name << ' ' << word.word;
        }
    }
}

TEST_F(PlixFormat, FindsComponentsByTheirType)
{
    ASSERT_NE(FindComponentFormat("text"), nullptr);
    EXPECT_EQ(FindComponentFormat("text")->type, "text");
    EXPECT_EQ(FindComponentFormat("bubble"), nullptr);
    EXPECT_EQ(FindComponentFormat("Text"), nullptr);
    EXPECT_EQ(FindKeyFormat(BubbleFormat(), "colour"), nullptr);
    EXPECT_EQ(ComponentFormats().size(), 8U);
}

TEST_F(PlixFormat, NamesTheMaximumDepthOfBoxes)
{
    EXPECT_EQ(MaximumNestedBoxes(), 24);
}

} // namespace
} // namespace plix::test
