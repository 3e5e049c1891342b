#include "model/PlixStoredAction.h"

#include <gtest/gtest.h>

#include <string>

namespace {

// Every text of an action, in the order of its fields.
constexpr std::string ST_ACTION::*kTexts[] = {
    &ST_ACTION::type,       &ST_ACTION::label,  &ST_ACTION::text,      &ST_ACTION::displayText,
    &ST_ACTION::uri,        &ST_ACTION::pcUri,  &ST_ACTION::webUri,    &ST_ACTION::appUri,
    &ST_ACTION::androidUri, &ST_ACTION::iosUri, &ST_ACTION::pcAuthUri, &ST_ACTION::copyText,
    &ST_ACTION::data,       &ST_ACTION::mode,   &ST_ACTION::initial,   &ST_ACTION::max,
    &ST_ACTION::min};

PlixLanguageMap english(const std::string& text)
{
    return {{{"en", text}, {"default", text + "!"}}};
}

TEST(PlixStoredAction, GivesEveryFieldBack)
{
    auto action = std::make_shared<ST_ACTION>();
    int number = 0;
    for (const auto text : kTexts)
        (*action).*text = "text " + std::to_string(++number);
    action->i18nLabels = english("label");
    action->i18nTexts = english("text");
    action->i18nDisplayTexts = english("display text");
    const ST_ACTION expected = *action;
    const PlixStoredAction stored(action);
    action.reset();

    const std::shared_ptr<ST_ACTION> record = stored.GetRecord();
    for (const auto text : kTexts)
        EXPECT_EQ((*record).*text, expected.*text);
    EXPECT_EQ(record->i18nLabels.texts, expected.i18nLabels.texts);
    EXPECT_EQ(record->i18nTexts.texts, expected.i18nTexts.texts);
    EXPECT_EQ(record->i18nDisplayTexts.texts, expected.i18nDisplayTexts.texts);
}

TEST(PlixStoredAction, GivesEachFieldBackAlone)
{
    for (const auto text : kTexts) {
        auto action = std::make_shared<ST_ACTION>();
        (*action).*text = "text";
        const PlixStoredAction stored(action);
        action.reset();
        const std::shared_ptr<ST_ACTION> record = stored.GetRecord();
        for (const auto other : kTexts)
            EXPECT_EQ((*record).*other, other == text ? "text" : "");
        EXPECT_TRUE(record->i18nLabels.texts.empty());
    }
}

TEST(PlixStoredAction, GivesOneRecordToAllWhoHoldIt)
{
    const auto action = std::make_shared<ST_ACTION>();
    const PlixStoredAction given(action);
    EXPECT_EQ(given.GetRecord(), action);

    const PlixStoredAction stored(std::make_shared<ST_ACTION>());
    const auto first = stored.GetRecord();
    EXPECT_EQ(stored.GetRecord(), first);
}

} // namespace
