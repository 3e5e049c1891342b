#include "model/PlixItemKind.h"

#include "layout/PlixKeywordTable.h"

#include <array>

namespace plix {

namespace {

constexpr std::array kTypeWords =
    std::to_array<PlixKeyword<PlixItemKind>>({{"bubble", PlixKindBubble},
                                              {"box", PlixKindBox},
                                              {"image", PlixKindImage},
                                              {"text", PlixKindText},
                                              {"filler", PlixKindFiller},
                                              {"separator", PlixKindSeparator},
                                              {"icon", PlixKindIcon},
                                              {"spacer", PlixKindSpacer},
                                              {"button", PlixKindButton}});

} // namespace

PlixItemKind ToItemKind(std::string_view word)
{
    return FindKeyword(kTypeWords, word).value_or(PlixKindNone);
}

} // namespace plix
