#pragma once

#include <cstdint>

// The fields of data items, spans and actions that are texts. Classes share the names:
// the color of a text and the color of a button are both PlixField::Color.
enum class PlixField : std::uint8_t {
    // Items and spans
    Align,
    AspectMode,
    AspectRatio,
    BackgroundColor,
    BorderColor,
    BorderWidth,
    Color,
    CornerRadius,
    Decoration,
    Direction,
    Gravity,
    Height,
    Layout,
    Margin,
    OffsetBottom,
    OffsetEnd,
    OffsetStart,
    OffsetTop,
    Position,
    Size,
    Spacing,
    Style,
    Text,
    Url,
    Weight,
    Width,
    // Actions
    ActionType,
    AndroidUri,
    AppUri,
    CopyText,
    Data,
    DisplayText,
    Initial,
    IosUri,
    Label,
    Max,
    Min,
    Mode,
    PcAuthUri,
    PcUri,
    Uri,
    WebUri,
};
