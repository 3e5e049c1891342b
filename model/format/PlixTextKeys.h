#pragma once

#include "model/PlixDataSpan.h"
#include "model/PlixDataText.h"
#include "model/format/PlixCommonKeys.h"

#include <array>
#include <string_view>

namespace plix {

// What a text and a span have in common.
struct PlixTextStyleKeys {
    static constexpr PlixFormatKey kWeight = {.name = "weight",
                                              .rule = PlixValueRule::Word,
                                              .words = Words<kTextWeights>(),
                                              .fallback = "\"regular\"",
                                              .description = "The thickness of its letters."};
    static constexpr PlixFormatKey kStyle = {.name = "style",
                                             .rule = PlixValueRule::Word,
                                             .words = Words<kTextStyles>(),
                                             .fallback = "\"normal\"",
                                             .description = "The slant of its letters."};
    static constexpr PlixFormatKey kDecoration = {.name = "decoration",
                                                  .rule = PlixValueRule::Word,
                                                  .words = Words<kTextDecorations>(),
                                                  .fallback = "\"none\"",
                                                  .description = "A line with it."};
};

inline constexpr auto kSpanKeys = std::to_array<PlixJsonKey<PlixDataSpan>>({
    StringKey<PlixDataSpan,
              static_cast<void (PlixDataSpan::*)(std::string_view)>(&PlixDataSpan::SetText)>(
        {.name = "text", .description = "The characters that it shows."}),
    StringKey<PlixDataSpan, &PlixDataSpan::SetSize>(
        {.name = "size",
         .rule = PlixValueRule::Word,
         .words = Words<kTextSizes>(),
         .description = "The height of its font. Without it, that of the text."}),
    StringKey<PlixDataSpan, &PlixDataSpan::SetColor>(
        {.name = "color",
         .rule = PlixValueRule::ColorAlphaLast,
         .description = "The colour of its letters. Without it, that of the text."}),
    StringKey<PlixDataSpan, &PlixDataSpan::SetWeight>(PlixTextStyleKeys::kWeight),
    StringKey<PlixDataSpan, &PlixDataSpan::SetStyle>(PlixTextStyleKeys::kStyle),
    StringKey<PlixDataSpan, &PlixDataSpan::SetDecoration>(PlixTextStyleKeys::kDecoration),
    TextsKey<PlixDataSpan>(),
});

inline constexpr auto kTextKeys = JoinKeys(
    std::to_array<PlixJsonKey<PlixDataText>>({
        StringKey<PlixDataText,
                  static_cast<void (PlixDataText::*)(std::string_view)>(&PlixDataText::SetText)>(
            {.name = "text", .description = "The characters that it shows."}),
        StringKey<PlixDataText, &PlixDataText::SetWeight>(PlixTextStyleKeys::kWeight),
        StringKey<PlixDataText, &PlixDataText::SetSize>({.name = "size",
                                                         .rule = PlixValueRule::Word,
                                                         .words = Words<kTextSizes>(),
                                                         .fallback = "\"md\"",
                                                         .description = "The height of its font."}),
        StringKey<PlixDataText, &PlixDataText::SetColor>(
            {.name = "color",
             .rule = PlixValueRule::ColorAlphaLast,
             .description = "The colour of its letters. Without it, #767676, or #0087EE in the "
                            "user's own messages."}),
        StringKey<PlixDataText, &PlixDataText::SetStyle>(PlixTextStyleKeys::kStyle),
        StringKey<PlixDataText, &PlixDataText::SetDecoration>(PlixTextStyleKeys::kDecoration),
        StringKey<PlixDataText, &PlixDataText::SetAlign>(
            {.name = "align",
             .rule = PlixValueRule::Word,
             .words = Words<kAligns>(),
             .fallback = "\"start\"",
             .description = "Where its lines are from side to side."}),
        StringKey<PlixDataText, &PlixDataText::SetGravity>(
            {.name = "gravity",
             .rule = PlixValueRule::Word,
             .words = Words<kGravities>(),
             .fallback = "\"top\"",
             .description = "Where its lines are from top to bottom."}),
        BooleanKey<PlixDataText, &PlixDataText::SetWrap>(
            {.name = "wrap",
             .fallback = "false",
             .description = "Whether it may have more than one line. If not, a long text ends "
                            "with an ellipsis."}),
        IntegerKey<PlixDataText, &PlixDataText::SetMaxLines>(
            {.name = "maxLines",
             .fallback = "0",
             .description = "The maximum number of its lines if it wraps, 0 for any number."}),
        TextsKey<PlixDataText>(),
    }),
    CommonKeys<PlixDataText>(),
    std::to_array<PlixJsonKey<PlixDataText>>({
        {{.name = "contents",
          .type = PlixJsonType::Array,
          .part = PlixFormatPart::Span,
          .description = "Parts with styles of their own. They replace \"text\"."},
         [](PlixJsonDataParse& parse, const PlixJsonMember& member, PlixDataText& text) {
             for (const Json::Value& node : RequireArray(member)) {
                 if (TypeWord(node) != "span")
                     continue;
                 ReadKeys<kSpanKeys>(parse, node, text.AddSpan());
             }
             text.EndSpans();
         }},
        ActionKey<PlixDataText>(),
    }));

} // namespace plix
