// The memory layout of the records. It must not change, since hosts are compiled
// separately.
#include <plix/Plix.h>

#include <gtest/gtest.h>

#include <cstddef>

namespace plix::test {
namespace {

// Sizes in bytes, which depend on the platform's standard library.
#if defined(__LP64__)
constexpr std::size_t kString = 32;
constexpr std::size_t kMap = 48;
constexpr std::size_t kAction = 688;
#else
constexpr std::size_t kString = 24;
constexpr std::size_t kMap = 24;
constexpr std::size_t kAction = 480;
#endif

template <typename Record, typename Field> std::size_t offsetOf(Field Record::*field)
{
    const Record record {};
    const auto* const start = reinterpret_cast<const std::byte*>(&record);
    return static_cast<std::size_t>(reinterpret_cast<const std::byte*>(&(record.*field)) - start);
}

TEST(DisplayParamRecord, HasFixedOffsets)
{
    EXPECT_EQ(sizeof(PlixDisplayParam), 12u);
    EXPECT_EQ(offsetOf(&PlixDisplayParam::mobileOnlyCheck), 0u);
    EXPECT_EQ(offsetOf(&PlixDisplayParam::markupEnabled), 1u);
    EXPECT_EQ(offsetOf(&PlixDisplayParam::wrapMode), 4u);
    EXPECT_EQ(offsetOf(&PlixDisplayParam::extraOption), 8u);
}

TEST(DisplayParamRecord, HasTheDocumentedDefaults)
{
    const PlixDisplayParam param;
    EXPECT_TRUE(param.mobileOnlyCheck);
    EXPECT_FALSE(param.markupEnabled);
    EXPECT_EQ(param.wrapMode, 4);
    EXPECT_EQ(param.extraOption, 1);
}

TEST(ActionRecord, HasFixedOffsets)
{
    EXPECT_EQ(sizeof(std::string), kString);
    EXPECT_EQ(sizeof(PlixLanguageMap), kMap);
    EXPECT_EQ(sizeof(ST_ACTION), kAction);

    constexpr std::string ST_ACTION::*kStrings[] = {
        &ST_ACTION::type,       &ST_ACTION::label,  &ST_ACTION::text,      &ST_ACTION::displayText,
        &ST_ACTION::uri,        &ST_ACTION::pcUri,  &ST_ACTION::webUri,    &ST_ACTION::appUri,
        &ST_ACTION::androidUri, &ST_ACTION::iosUri, &ST_ACTION::pcAuthUri, &ST_ACTION::copyText,
        &ST_ACTION::data,       &ST_ACTION::mode,   &ST_ACTION::initial,   &ST_ACTION::max,
        &ST_ACTION::min};
    constexpr PlixLanguageMap ST_ACTION::*kMaps[] = {&ST_ACTION::i18nLabels, &ST_ACTION::i18nTexts,
                                                     &ST_ACTION::i18nDisplayTexts};
    std::size_t expected = 0;
    for (const auto field : kStrings) {
        EXPECT_EQ(offsetOf(field), expected);
        expected += kString;
    }
    for (const auto field : kMaps) {
        EXPECT_EQ(offsetOf(field), expected);
        expected += kMap;
    }
}

} // namespace
} // namespace plix::test
