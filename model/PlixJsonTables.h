#pragma once

#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDataButton.h"
#include "model/PlixDataFiller.h"
#include "model/PlixDataIcon.h"
#include "model/PlixDataImage.h"
#include "model/PlixDataSeparator.h"
#include "model/PlixDataSpacer.h"
#include "model/PlixDataSpan.h"
#include "model/PlixDataText.h"
#include "model/PlixJsonDataParse.h"
#include "model/PlixJsonKey.h"
#include "model/PlixJsonValue.h"
#include "model/PlixZoneStyle.h"

#include <plix/Plix.h>

#include <json/value.h>

#include <array>
#include <memory>
#include <string>
#include <utility>

namespace plix {

// The keys of a card message: one table per component, in reading order. These
// tables are the only place that defines the keys.

// ---- rows for values that an operation of the reader reads ----

template <typename Item> constexpr PlixJsonKey<Item> ActionKey()
{
    return {"action", PlixJsonType::Object,
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, Item& item) {
                if (member.value.isNull())
                    return;
                // Not make_shared(), see PlixStoredAction::GetRecord().
                const std::shared_ptr<ST_ACTION> action = std::make_unique<ST_ACTION>();
                parse.ParseAction(member, *action);
                item.SetAction(action);
            }};
}

// "i18nTexts" of texts and spans: reads six languages and ignores others.
template <typename Target> constexpr PlixJsonKey<Target> TextsKey()
{
    return {"i18nTexts", PlixJsonType::Object,
            [](PlixJsonDataParse&, const PlixJsonMember& member, Target& target) {
                const Json::Value& texts = RequireObject(member);
                for (const char* code : {"ko", "ja", "en", "zh-CN", "zh-TW", "default"}) {
                    if (const Json::Value* text = FindMember(texts, code))
                        target.SetText(code, ToString({code, *text}));
                }
            }};
}

template <typename Item> constexpr PlixJsonKey<Item> UrlsKey()
{
    return {"i18nUrls", PlixJsonType::Object,
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, Item& item) {
                parse.ParseMultiLang(member, item.MutableUrls());
            }};
}

template <auto Field> constexpr PlixJsonKey<ST_ACTION> ActionTextKey(std::string_view name)
{
    return {name, PlixJsonType::String,
            [](PlixJsonDataParse&, const PlixJsonMember& member, ST_ACTION& action) {
                action.*Field = ToString(member);
            }};
}

template <auto Field> constexpr PlixJsonKey<ST_ACTION> ActionTextsKey(std::string_view name)
{
    return {name, PlixJsonType::Object,
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, ST_ACTION& action) {
                parse.ParseMultiLang(member, action.*Field);
            }};
}

template <auto Zone> constexpr PlixJsonKey<PlixDataBubble> ZoneKey(std::string_view name)
{
    return {name, PlixJsonType::Object,
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataBubble& bubble) {
                parse.ParseZone(member, (bubble.*Zone)());
            }};
}

// ---- the tables, each in reading order ----

template <typename Item> constexpr auto CommonKeys()
{
    return std::to_array<PlixJsonKey<Item>>({
        IntegerKey<Item, &Item::SetGrow>("flex"),
        StringKey<Item, &Item::SetMargin>("margin"),
        StringKey<Item, &Item::SetPosition>("position"),
        StringKey<Item, &Item::SetOffsetStart>("offsetStart"),
        StringKey<Item, &Item::SetOffsetEnd>("offsetEnd"),
        StringKey<Item, &Item::SetOffsetTop>("offsetTop"),
        StringKey<Item, &Item::SetOffsetBottom>("offsetBottom"),
    });
}

inline constexpr auto kZoneStyleKeys = std::to_array<PlixJsonKey<PlixZoneStyle>>({
    StringKey<PlixZoneStyle, &PlixZoneStyle::SetBackgroundColor>("backgroundColor"),
    BooleanKey<PlixZoneStyle, &PlixZoneStyle::SetSeparator>("separator"),
    StringKey<PlixZoneStyle, &PlixZoneStyle::SetSeparatorColor>("separatorColor"),
});

template <auto Style> constexpr PlixJsonKey<PlixDataBubble> ZoneStyleKey(std::string_view name)
{
    return {name, PlixJsonType::Object,
            [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataBubble& bubble) {
                ReadKeys(kZoneStyleKeys, parse, RequireObject(member), (bubble.*Style)());
            }};
}

inline constexpr auto kStylesKeys = std::to_array<PlixJsonKey<PlixDataBubble>>({
    ZoneStyleKey<&PlixDataBubble::GetHeaderStyle>("header"),
    ZoneStyleKey<&PlixDataBubble::GetHeroStyle>("hero"),
    ZoneStyleKey<&PlixDataBubble::GetBodyStyle>("body"),
    ZoneStyleKey<&PlixDataBubble::GetFooterStyle>("footer"),
});

inline constexpr auto kBubbleKeys = std::to_array<PlixJsonKey<PlixDataBubble>>({
    StringKey<PlixDataBubble, &PlixDataBubble::SetDirection>("direction"),
    StringKey<PlixDataBubble, &PlixDataBubble::SetSize>("size"),
    ZoneKey<&PlixDataBubble::GetHeader>("header"),
    ZoneKey<&PlixDataBubble::GetHero>("hero"),
    ZoneKey<&PlixDataBubble::GetBody>("body"),
    ZoneKey<&PlixDataBubble::GetFooter>("footer"),
    {"styles", PlixJsonType::Object,
     [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataBubble& bubble) {
         ReadKeys(kStylesKeys, parse, RequireObject(member), bubble);
     }},
    ActionKey<PlixDataBubble>(),
});

inline constexpr auto kBoxKeys =
    JoinKeys(std::to_array<PlixJsonKey<PlixDataBox>>({
                 StringKey<PlixDataBox, &PlixDataBox::SetLayout>("layout"),
                 StringKey<PlixDataBox, &PlixDataBox::SetSpacing>("spacing"),
                 StringKey<PlixDataBox, &PlixDataBox::SetBackgroundColor>("backgroundColor"),
                 StringKey<PlixDataBox, &PlixDataBox::SetCornerRadius>("cornerRadius"),
                 StringKey<PlixDataBox, &PlixDataBox::SetWidth>("width"),
                 StringKey<PlixDataBox, &PlixDataBox::SetHeight>("height"),
                 StringKey<PlixDataBox, &PlixDataBox::SetBorderColor>("borderColor"),
                 StringKey<PlixDataBox, &PlixDataBox::SetBorderWidth>("borderWidth"),
                 StringKey<PlixDataBox, &PlixDataBox::SetPaddingAll>("paddingAll"),
                 StringKey<PlixDataBox, &PlixDataBox::SetPaddingTop>("paddingTop"),
                 StringKey<PlixDataBox, &PlixDataBox::SetPaddingBottom>("paddingBottom"),
                 StringKey<PlixDataBox, &PlixDataBox::SetPaddingStart>("paddingStart"),
                 StringKey<PlixDataBox, &PlixDataBox::SetPaddingEnd>("paddingEnd"),
             }),
             CommonKeys<PlixDataBox>(),
             std::to_array<PlixJsonKey<PlixDataBox>>({
                 ActionKey<PlixDataBox>(),
             }));

// Read after the other keys of a box, and only if the box is not nested too deeply.
inline constexpr auto kBoxContentsKeys = std::to_array<PlixJsonKey<PlixDataBox>>({
    {"contents", PlixJsonType::Array,
     [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataBox& box) {
         const Json::Value& contents = RequireArray(member);
         PlixDataContainer& children = *box.GetContainer();
         children.Reserve(contents.size());
         int index = 0;
         for (const Json::Value& node : contents)
             parse.AddComponent(node, index++, children);
         children.ShrinkToFit();
     }},
});

inline constexpr auto kSpanKeys = std::to_array<PlixJsonKey<PlixDataSpan>>({
    StringKey<PlixDataSpan,
              static_cast<void (PlixDataSpan::*)(std::string_view)>(&PlixDataSpan::SetText)>(
        "text"),
    StringKey<PlixDataSpan, &PlixDataSpan::SetSize>("size"),
    StringKey<PlixDataSpan, &PlixDataSpan::SetColor>("color"),
    StringKey<PlixDataSpan, &PlixDataSpan::SetWeight>("weight"),
    StringKey<PlixDataSpan, &PlixDataSpan::SetStyle>("style"),
    StringKey<PlixDataSpan, &PlixDataSpan::SetDecoration>("decoration"),
    TextsKey<PlixDataSpan>(),
});

inline constexpr auto kTextKeys = JoinKeys(
    std::to_array<PlixJsonKey<PlixDataText>>({
        StringKey<PlixDataText,
                  static_cast<void (PlixDataText::*)(std::string_view)>(&PlixDataText::SetText)>(
            "text"),
        StringKey<PlixDataText, &PlixDataText::SetWeight>("weight"),
        StringKey<PlixDataText, &PlixDataText::SetSize>("size"),
        StringKey<PlixDataText, &PlixDataText::SetColor>("color"),
        StringKey<PlixDataText, &PlixDataText::SetStyle>("style"),
        StringKey<PlixDataText, &PlixDataText::SetDecoration>("decoration"),
        StringKey<PlixDataText, &PlixDataText::SetAlign>("align"),
        StringKey<PlixDataText, &PlixDataText::SetGravity>("gravity"),
        BooleanKey<PlixDataText, &PlixDataText::SetWrap>("wrap"),
        IntegerKey<PlixDataText, &PlixDataText::SetMaxLines>("maxLines"),
        TextsKey<PlixDataText>(),
    }),
    CommonKeys<PlixDataText>(),
    std::to_array<PlixJsonKey<PlixDataText>>({
        {"contents", PlixJsonType::Array,
         [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataText& text) {
             for (const Json::Value& node : RequireArray(member)) {
                 if (TypeWord(node) != "span")
                     continue;
                 ReadKeys(kSpanKeys, parse, node, text.AddSpan());
             }
             text.EndSpans();
         }},
        ActionKey<PlixDataText>(),
    }));

inline constexpr auto kImageKeys =
    JoinKeys(std::to_array<PlixJsonKey<PlixDataImage>>({
                 StringKey<PlixDataImage, &PlixDataImage::SetUrl>("url"),
                 StringKey<PlixDataImage, &PlixDataImage::SetSize>("size"),
                 StringKey<PlixDataImage, &PlixDataImage::SetAspectRatio>("aspectRatio"),
                 StringKey<PlixDataImage, &PlixDataImage::SetAspectMode>("aspectMode"),
                 StringKey<PlixDataImage, &PlixDataImage::SetAlign>("align"),
                 StringKey<PlixDataImage, &PlixDataImage::SetGravity>("gravity"),
                 StringKey<PlixDataImage, &PlixDataImage::SetBackgroundColor>("backgroundColor"),
                 UrlsKey<PlixDataImage>(),
             }),
             CommonKeys<PlixDataImage>(),
             std::to_array<PlixJsonKey<PlixDataImage>>({ActionKey<PlixDataImage>()}));

inline constexpr auto kIconKeys =
    JoinKeys(std::to_array<PlixJsonKey<PlixDataIcon>>({
                 StringKey<PlixDataIcon, &PlixDataIcon::SetSize>("size"),
                 StringKey<PlixDataIcon, &PlixDataIcon::SetUrl>("url"),
                 StringKey<PlixDataIcon, &PlixDataIcon::SetAspectRatio>("aspectRatio"),
                 UrlsKey<PlixDataIcon>(),
             }),
             CommonKeys<PlixDataIcon>());

inline constexpr auto kButtonKeys =
    JoinKeys(std::to_array<PlixJsonKey<PlixDataButton>>({
                 StringKey<PlixDataButton, &PlixDataButton::SetStyle>("style"),
                 StringKey<PlixDataButton, &PlixDataButton::SetHeight>("height"),
                 StringKey<PlixDataButton, &PlixDataButton::SetColor>("color"),
                 StringKey<PlixDataButton, &PlixDataButton::SetGravity>("gravity"),
                 StringKey<PlixDataButton, &PlixDataButton::SetSize>("size"),
             }),
             CommonKeys<PlixDataButton>(),
             std::to_array<PlixJsonKey<PlixDataButton>>({ActionKey<PlixDataButton>()}));

inline constexpr auto kSpacerKeys = std::to_array<PlixJsonKey<PlixDataSpacer>>({
    StringKey<PlixDataSpacer, &PlixDataSpacer::SetSize>("size"),
});

inline constexpr auto kFillerKeys = std::to_array<PlixJsonKey<PlixDataFiller>>({
    IntegerKey<PlixDataFiller, &PlixDataFiller::SetFlex>("flex"),
});

inline constexpr auto kSeparatorKeys = std::to_array<PlixJsonKey<PlixDataSeparator>>({
    StringKey<PlixDataSeparator, &PlixDataSeparator::SetMargin>("margin"),
    StringKey<PlixDataSeparator, &PlixDataSeparator::SetColor>("color"),
});

// "postback" is another name for "data". It is read later, so it takes precedence.
inline constexpr auto kActionKeys = std::to_array<PlixJsonKey<ST_ACTION>>({
    ActionTextKey<&ST_ACTION::type>("type"),
    ActionTextKey<&ST_ACTION::uri>("uri"),
    ActionTextKey<&ST_ACTION::pcUri>("pcUri"),
    ActionTextKey<&ST_ACTION::appUri>("appUri"),
    ActionTextKey<&ST_ACTION::androidUri>("androidUri"),
    ActionTextKey<&ST_ACTION::iosUri>("iosUri"),
    ActionTextKey<&ST_ACTION::webUri>("webUri"),
    ActionTextKey<&ST_ACTION::pcAuthUri>("pcAuthUri"),
    ActionTextKey<&ST_ACTION::label>("label"),
    ActionTextKey<&ST_ACTION::data>("data"),
    ActionTextKey<&ST_ACTION::data>("postback"),
    ActionTextKey<&ST_ACTION::text>("text"),
    ActionTextKey<&ST_ACTION::displayText>("displayText"),
    ActionTextKey<&ST_ACTION::mode>("mode"),
    ActionTextKey<&ST_ACTION::initial>("initial"),
    ActionTextKey<&ST_ACTION::max>("max"),
    ActionTextKey<&ST_ACTION::min>("min"),
    ActionTextsKey<&ST_ACTION::i18nLabels>("i18nLabels"),
    ActionTextsKey<&ST_ACTION::i18nTexts>("i18nTexts"),
    ActionTextsKey<&ST_ACTION::i18nDisplayTexts>("i18nDisplayTexts"),
    ActionTextKey<&ST_ACTION::copyText>("copyText"),
});

} // namespace plix
