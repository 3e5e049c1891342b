#pragma once

#include "layout/PlixLengthWords.h"
#include "model/PlixJsonDataParse.h"
#include "model/PlixJsonKey.h"
#include "model/PlixJsonValue.h"
#include "model/format/PlixFormatKey.h"

#include <plix/Plix.h>

#include <array>
#include <memory>
#include <string>
#include <utility>

// The tables of the card format, one per component, in reading order. They are the
// only place that defines the keys. This header has what several components share.
namespace plix {

template <typename Item> constexpr PlixJsonKey<Item> ActionKey()
{
    return {{.name = "action",
             .type = PlixJsonType::Object,
             .part = PlixFormatPart::Action,
             .description = "What a click does."},
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, Item& item) {
                if (member.value.isNull())
                    return;
                // Not make_shared(), see PlixStoredAction::GetRecord().
                const std::shared_ptr<ST_ACTION> action = std::make_unique<ST_ACTION>();
                parse.ParseAction(member, *action);
                item.SetAction(action);
            }};
}

// The only languages of "i18nTexts"; others are ignored.
inline constexpr std::array kTextLanguages =
    std::to_array<PlixFormatWord>({{"ko", {}, "Korean"},
                                   {"ja", {}, "Japanese"},
                                   {"en", {}, "English"},
                                   {"zh-CN", {}, "Chinese, simplified"},
                                   {"zh-TW", {}, "Chinese, traditional"},
                                   {"default", {}, "every other language"}});

template <typename Target> constexpr PlixJsonKey<Target> TextsKey()
{
    return {
        {.name = "i18nTexts",
         .type = PlixJsonType::Object,
         .words = kTextLanguages,
         .part = PlixFormatPart::Texts,
         .description = "The text in other languages."},
        [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
            const Json::Value& texts = RequireObject(member);
            for (const PlixFormatWord& language : kTextLanguages) {
                if (const Json::Value* text = FindMember(texts, language.word))
                    target.SetText(std::string(language.word), ToString({language.word, *text}));
            }
        }};
}

template <typename Item> constexpr PlixJsonKey<Item> UrlsKey()
{
    return {{.name = "i18nUrls",
             .type = PlixJsonType::Object,
             .part = PlixFormatPart::Variants,
             .description = "The picture's address in other languages."},
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, Item& item) {
                parse.ParseMultiLang(member, item.MutableUrls());
            }};
}

template <typename Item> constexpr PlixJsonKey<Item> MarginKey()
{
    return StringKey<Item, &Item::SetMargin>(
        {.name = "margin",
         .rule = PlixValueRule::Length,
         .words = Words<kLengths>(),
         .mayBeNegative = true,
         .description = "The distance to the item before it, instead of the box's "
                        "\"spacing\". The first item has none."});
}

template <typename Item> constexpr auto CommonKeys()
{
    return std::to_array<PlixJsonKey<Item>>({
        IntegerKey<Item, &Item::SetGrow>(
            {.name = "flex",
             .description = "Its share of the free space. Without it, an item has a share of 1 "
                            "in a row, and none in a column."}),
        MarginKey<Item>(),
        StringKey<Item, &Item::SetPosition>({.name = "position",
                                             .rule = PlixValueRule::Word,
                                             .words = Words<kPositions>(),
                                             .fallback = "\"relative\"",
                                             .description = "Where it is placed."}),
        StringKey<Item, &Item::SetOffsetStart>(
            {.name = "offsetStart",
             .rule = PlixValueRule::LengthOrPercent,
             .words = Words<kLengths>(),
             .description = "Its distance from the side where lines begin "
                            "if absolute (0 counts as none); otherwise moves it away from there."}),
        StringKey<Item, &Item::SetOffsetEnd>(
            {.name = "offsetEnd",
             .rule = PlixValueRule::LengthOrPercent,
             .words = Words<kLengths>(),
             .description = "Its distance from the side where lines end "
                            "if absolute (0 counts as none); otherwise moves it away from there."}),
        StringKey<Item, &Item::SetOffsetTop>({.name = "offsetTop",
                                              .rule = PlixValueRule::LengthOrPercent,
                                              .words = Words<kLengths>(),
                                              .description =
                                                  "Its distance from the upper edge if absolute (0 "
                                                  "counts as none); otherwise moves it down."}),
        StringKey<Item, &Item::SetOffsetBottom>(
            {.name = "offsetBottom",
             .rule = PlixValueRule::LengthOrPercent,
             .words = Words<kLengths>(),
             .description = "Its distance from the lower edge if absolute (0 "
                            "counts as none); otherwise moves it up."}),
    });
}

} // namespace plix
