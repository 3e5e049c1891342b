#include "model/format/PlixFormat.h"

#include "layout/PlixLimits.h"
#include "model/format/PlixActionKeys.h"
#include "model/format/PlixBoxKeys.h"
#include "model/format/PlixBubbleKeys.h"
#include "model/format/PlixButtonKeys.h"
#include "model/format/PlixPictureKeys.h"
#include "model/format/PlixSpaceKeys.h"
#include "model/format/PlixTextKeys.h"

#include <algorithm>
#include <array>
#include <utility>

namespace plix {

namespace {

// The rows of the reader, without its functions.
template <typename Target, std::size_t Size>
constexpr auto ToFormats(const std::array<PlixJsonKey<Target>, Size>& keys)
{
    std::array<PlixFormatKey, Size> formats {};
    std::transform(keys.begin(), keys.end(), formats.begin(),
                   [](const PlixJsonKey<Target>& key) { return key.format; });
    return formats;
}

template <const auto& Keys> constexpr auto kFormats = ToFormats(Keys);

constexpr auto kBoxFormats = ToFormats(JoinKeys(kBoxKeys, kBoxContentsKeys));

constexpr PlixFormatComponent ToComponent(PlixItemKind kind, std::span<const PlixFormatKey> keys)
{
    const auto* const row = std::find_if(kTypeWords.begin(), kTypeWords.end(),
                                         [kind](const auto& each) { return each.value == kind; });
    return {row->word, row->meaning, keys};
}

constexpr PlixFormatComponent kBubble = ToComponent(PlixKindBubble, kFormats<kBubbleKeys>);

constexpr std::array kComponents = std::to_array<PlixFormatComponent>({
    ToComponent(PlixKindBox, kBoxFormats),
    ToComponent(PlixKindText, kFormats<kTextKeys>),
    ToComponent(PlixKindImage, kFormats<kImageKeys>),
    ToComponent(PlixKindIcon, kFormats<kIconKeys>),
    ToComponent(PlixKindButton, kFormats<kButtonKeys>),
    ToComponent(PlixKindSeparator, kFormats<kSeparatorKeys>),
    ToComponent(PlixKindSpacer, kFormats<kSpacerKeys>),
    ToComponent(PlixKindFiller, kFormats<kFillerKeys>),
});

constexpr std::array kParts = std::to_array<std::pair<PlixFormatPart, PlixFormatComponent>>({
    {PlixFormatPart::Span,
     {"span", "A part of a text with a style of its own.", kFormats<kSpanKeys>}},
    {PlixFormatPart::Action, {"", "What a click does.", kFormats<kActionKeys>}},
    {PlixFormatPart::Styles, {"", "The styles of the zones.", kFormats<kStylesKeys>}},
    {PlixFormatPart::ZoneStyle, {"", "The style of a zone.", kFormats<kZoneStyleKeys>}},
});

constexpr PlixFormatComponent kNoKeys;

} // namespace

const PlixFormatComponent& BubbleFormat()
{
    return kBubble;
}

std::span<const PlixFormatComponent> ComponentFormats()
{
    return kComponents;
}

const PlixFormatComponent& PartFormat(PlixFormatPart part)
{
    const auto* const found = std::find_if(kParts.begin(), kParts.end(),
                                           [part](const auto& row) { return row.first == part; });
    return found == kParts.end() ? kNoKeys : found->second;
}

const PlixFormatComponent* FindComponentFormat(std::string_view type)
{
    const auto* const found = std::find_if(kComponents.begin(), kComponents.end(),
                                           [type](const auto& row) { return row.type == type; });
    return found == kComponents.end() ? nullptr : found;
}

const PlixFormatKey* FindKeyFormat(const PlixFormatComponent& component, std::string_view name)
{
    const auto found = std::find_if(component.keys.begin(), component.keys.end(),
                                    [name](const auto& key) { return key.name == name; });
    return found == component.keys.end() ? nullptr : &*found;
}

int MaximumMessageBytes()
{
    return kMaximumMessageBytes;
}

int MaximumItems()
{
    return kMaximumItems;
}

int MaximumNestedBoxes()
{
    return kMaximumNestedBoxes;
}

bool IsReadByItself(PlixFormatPart part)
{
    return part == PlixFormatPart::Component || part == PlixFormatPart::Action
        || part == PlixFormatPart::Variants;
}

} // namespace plix
