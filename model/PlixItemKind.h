#pragma once

#include <string_view>

// The kinds of data items. The factories and the reader use these numbers as keys.
enum PlixItemKind : int {
    PlixKindNone = 0,
    PlixKindBubble = 1,
    PlixKindImage = 2,
    PlixKindBox = 3,
    PlixKindText = 4,
    PlixKindIcon = 5,
    PlixKindButton = 6,
    PlixKindSpacer = 7,
    PlixKindFiller = 8,
    PlixKindSeparator = 9,
};

namespace plix {

// The kind that a "type" word names, PlixKindNone for any other word.
PlixItemKind ToItemKind(std::string_view word);

} // namespace plix
