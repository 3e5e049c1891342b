#pragma once

#include "layout/PlixKeywordTable.h"
#include "model/PlixActionKind.h"
#include "model/PlixItemKind.h"

#include <Qt>

#include <array>

// The words of the card format, except for lengths (layout/PlixLengthWords.h), and what
// they stand for.

enum class PlixBoxLayout { Horizontal, Vertical, Baseline };
enum class PlixPosition { Relative, Absolute };
enum class PlixTextWeight { Unchanged, Bold };
enum class PlixTextDecoration { Unchanged, LineThrough, Underline };
enum class PlixTextStyle { Unchanged, Italic };
enum class PlixAspectMode { Fit, Cover };

// How a word of "align" or "gravity" places an item in its box, and content that
// is smaller than its item.
struct PlixAlignment {
    Qt::AlignmentFlag flag = Qt::AlignLeft; // for YogaLayoutItem::setAlignment()
    // The share of the free space that lies before the content: left of it, or
    // above it.
    double shareBefore = 0;
};

// What follows from the size of a card, in logical pixels.
struct PlixBubbleSize {
    float width = 300;
    float spacing = 20;
    // Between the body and a footer that is not empty.
    float footerSpacing = 20;
};

// The colours of a button. The card's "color" replaces one of them.
struct PlixButtonLook {
    enum class Colored { Nothing, Plate, Label };

    const char* plate = "";
    const char* label = "black";
    Colored colored = Colored::Nothing;
};

namespace plix {

inline constexpr std::array kTypeWords = std::to_array<PlixKeyword<PlixItemKind>>(
    {{"bubble", PlixKindBubble, "A card."},
     {"box", PlixKindBox, "A row or a column of components."},
     {"image", PlixKindImage, "A picture with a fixed shape."},
     {"text", PlixKindText, "A text in one style, or in several with spans."},
     {"filler", PlixKindFiller, "Empty space that grows."},
     {"separator", PlixKindSeparator, "A thin line across its box."},
     {"icon", PlixKindIcon, "A small picture that is as high as a text."},
     {"spacer", PlixKindSpacer, "Empty space of a fixed size."},
     {"button", PlixKindButton, "A label to click, with one line."}});

inline constexpr std::array kActionWords = std::to_array<PlixKeyword<PlixActionKind>>(
    {{"uri", PlixActionUri, "opens a link"},
     {"message", PlixActionMessage, "sends a message"},
     {"postback", PlixActionPostback, "sends \"data\" to the bot"}});

inline constexpr std::array kDirections = std::to_array<PlixKeyword<Qt::LayoutDirection>>(
    {{"ltr", Qt::LeftToRight, "from left to right"},
     {"rtl", Qt::RightToLeft, "from right to left"}});

inline constexpr std::array kBubbleSizes =
    std::to_array<PlixKeyword<PlixBubbleSize>>({{"giga", {500, 20, 10}},
                                                {"autogiga", {385, 20, 20}},
                                                {"sn_autogiga", {343, 20, 20}},
                                                {"mega", {300, 20, 10}},
                                                {"kilo", {260, 13, 3}},
                                                {"micro", {160, 10, 0}},
                                                {"nano", {120, 10, 0}}});

inline constexpr std::array kBoxLayouts = std::to_array<PlixKeyword<PlixBoxLayout>>(
    {{"vertical", PlixBoxLayout::Vertical, "a column"},
     {"horizontal", PlixBoxLayout::Horizontal, "a row"},
     {"baseline", PlixBoxLayout::Baseline, "a row whose texts stand on one line"}});

inline constexpr std::array kPositions = std::to_array<PlixKeyword<PlixPosition>>(
    {{"relative", PlixPosition::Relative, "after the item before it"},
     {"absolute", PlixPosition::Absolute, "over its box, moved by the offsets"}});

inline constexpr std::array kAligns =
    std::to_array<PlixKeyword<PlixAlignment>>({{"start", {Qt::AlignLeft, 0}, "where lines begin"},
                                               {"center", {Qt::AlignHCenter, 0.5}, "in the middle"},
                                               {"end", {Qt::AlignRight, 1}, "where lines end"}});

inline constexpr std::array kGravities =
    std::to_array<PlixKeyword<PlixAlignment>>({{"top", {Qt::AlignTop, 0}, "at the top"},
                                               {"center", {Qt::AlignVCenter, 0.5}, "in the middle"},
                                               {"bottom", {Qt::AlignBottom, 1}, "at the bottom"}});

inline constexpr std::array kTextSizes = std::to_array<PlixKeyword<int>>({{"xxs", 11},
                                                                          {"xs", 13},
                                                                          {"sm", 14},
                                                                          {"md", 16},
                                                                          {"lg", 19},
                                                                          {"xl", 22},
                                                                          {"xxl", 29},
                                                                          {"3xl", 35},
                                                                          {"4xl", 48},
                                                                          {"5xl", 74}});

// A span begins with the font of its text. So no word makes a span of a bold text
// thinner.
inline constexpr std::array kTextWeights = std::to_array<PlixKeyword<PlixTextWeight>>(
    {{"regular", PlixTextWeight::Unchanged, "as without this key"},
     {"bold", PlixTextWeight::Bold, "bold"}});

inline constexpr std::array kTextDecorations = std::to_array<PlixKeyword<PlixTextDecoration>>(
    {{"none", PlixTextDecoration::Unchanged, "as without this key"},
     {"underline", PlixTextDecoration::Underline, "a line below the text"},
     {"line-through", PlixTextDecoration::LineThrough, "a line through the text"}});

inline constexpr std::array kTextStyles = std::to_array<PlixKeyword<PlixTextStyle>>(
    {{"normal", PlixTextStyle::Unchanged, "as without this key"},
     {"italic", PlixTextStyle::Italic, "italic"}});

inline constexpr std::array kAspectModes = std::to_array<PlixKeyword<PlixAspectMode>>(
    {{"fit", PlixAspectMode::Fit, "the whole picture, with a margin if its shape differs"},
     {"cover", PlixAspectMode::Cover, "fills the image, and cuts the picture if needed"}});

inline constexpr std::array kButtonLooks = std::to_array<PlixKeyword<PlixButtonLook>>(
    {{"link", {"", "#157EFB", PlixButtonLook::Colored::Label}, "a coloured label"},
     {"primary",
      {"#0dc950", "white", PlixButtonLook::Colored::Plate},
      "a white label on a coloured plate"},
     {"secondary",
      {"#d8dee6", "black", PlixButtonLook::Colored::Plate},
      "a black label on a coloured plate"},
     {"automatic",
      {"#ffffff", "#0087EE", PlixButtonLook::Colored::Nothing},
      "a blue label on a white plate; \"color\" changes nothing"}});

inline constexpr std::array kButtonHeights =
    std::to_array<PlixKeyword<int>>({{"sm", 40}, {"md", 52}});

} // namespace plix
