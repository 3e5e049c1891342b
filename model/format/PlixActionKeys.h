#pragma once

#include "model/format/PlixCommonKeys.h"

#include <plix/Plix.h>

#include <array>

namespace plix {

template <auto Field> constexpr PlixJsonKey<ST_ACTION> ActionTextKey(PlixFormatKey format)
{
    return {format, [](PlixJsonDataParse&, const PlixJsonMember& member, ST_ACTION& action) {
                action.*Field = ToString(member);
            }};
}

template <auto Field>
constexpr PlixJsonKey<ST_ACTION> ActionLinkKey(std::string_view name, std::string_view description)
{
    return ActionTextKey<Field>(
        {.name = name, .rule = PlixValueRule::Url, .description = description});
}

template <auto Field>
constexpr PlixJsonKey<ST_ACTION> ActionTextsKey(std::string_view name, std::string_view description)
{
    return {{.name = name,
             .type = PlixJsonType::Object,
             .part = PlixFormatPart::Variants,
             .description = description},
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, ST_ACTION& action) {
                parse.ParseMultiLang(member, action.*Field);
            }};
}

// "postback" is another name for "data". It is read later, so it takes precedence.
inline constexpr auto kActionKeys = std::to_array<PlixJsonKey<ST_ACTION>>({
    ActionTextKey<&ST_ACTION::type>({.name = "type",
                                     .rule = PlixValueRule::Word,
                                     .words = Words<kActionWords>(),
                                     .isRequired = true,
                                     .description = "What a click does."}),
    ActionLinkKey<&ST_ACTION::uri>("uri", "The link to open."),
    ActionLinkKey<&ST_ACTION::pcUri>("pcUri", "The link on a desktop."),
    ActionLinkKey<&ST_ACTION::appUri>("appUri", "The link that opens a mobile app."),
    ActionLinkKey<&ST_ACTION::androidUri>("androidUri", "The link on Android."),
    ActionLinkKey<&ST_ACTION::iosUri>("iosUri", "The link on iOS."),
    ActionLinkKey<&ST_ACTION::webUri>("webUri", "The link in a browser."),
    ActionLinkKey<&ST_ACTION::pcAuthUri>("pcAuthUri",
                                         "The link on a desktop that signs the user in."),
    ActionTextKey<&ST_ACTION::label>({.name = "label", .description = "The label of a button."}),
    ActionTextKey<&ST_ACTION::data>(
        {.name = "data", .description = "What a postback sends to the bot."}),
    ActionTextKey<&ST_ACTION::data>(
        {.name = "postback",
         .description = "Another name for \"data\". If both are there, this one counts."}),
    ActionTextKey<&ST_ACTION::text>(
        {.name = "text", .description = "The message that the user sends."}),
    ActionTextKey<&ST_ACTION::displayText>(
        {.name = "displayText", .description = "The message that the chat shows for a postback."}),
    ActionTextKey<&ST_ACTION::mode>({.name = "mode", .description = "For the chat program."}),
    ActionTextKey<&ST_ACTION::initial>({.name = "initial", .description = "For the chat program."}),
    ActionTextKey<&ST_ACTION::max>({.name = "max", .description = "For the chat program."}),
    ActionTextKey<&ST_ACTION::min>({.name = "min", .description = "For the chat program."}),
    ActionTextsKey<&ST_ACTION::i18nLabels>("i18nLabels", "The label in other languages."),
    ActionTextsKey<&ST_ACTION::i18nTexts>("i18nTexts", "The message in other languages."),
    ActionTextsKey<&ST_ACTION::i18nDisplayTexts>("i18nDisplayTexts",
                                                 "\"displayText\" in other languages."),
    ActionTextKey<&ST_ACTION::copyText>(
        {.name = "copyText", .description = "A text to copy, for the chat program."}),
});

} // namespace plix
