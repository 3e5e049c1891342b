#include "check/Rule.h"

#include <algorithm>
#include <cstddef>

namespace plix::tool {
namespace {

constexpr RuleDescription error(Rule rule, QLatin1String code, QLatin1String title)
{
    return {rule, code, Severity::Error, title};
}

constexpr RuleDescription warning(Rule rule, QLatin1String code, QLatin1String title)
{
    return {rule, code, Severity::Warning, title};
}

// In the order of Rule.
constexpr std::array<RuleDescription, kRuleCount> kRules {
    error(Rule::Syntax, QLatin1String("syntax"), QLatin1String("The text is not JSON")),
    error(Rule::TextAfterCard, QLatin1String("text-after-card"),
          QLatin1String("Text follows the card")),
    error(Rule::DuplicateKey, QLatin1String("duplicate-key"),
          QLatin1String("A key is there twice")),
    error(Rule::LoneSurrogate, QLatin1String("lone-surrogate"),
          QLatin1String("Half of a character")),
    error(Rule::InvalidUtf8, QLatin1String("invalid-utf8"), QLatin1String("Bytes are not UTF-8")),
    error(Rule::NotACard, QLatin1String("not-a-card"), QLatin1String("The JSON is not a card")),
    error(Rule::WrongKind, QLatin1String("wrong-kind"),
          QLatin1String("A value is of the wrong kind")),
    warning(Rule::ConvertedKind, QLatin1String("converted-kind"),
            QLatin1String("A value of another kind is converted")),
    warning(Rule::UnknownKey, QLatin1String("unknown-key"), QLatin1String("A key is unknown")),
    warning(Rule::UnknownType, QLatin1String("unknown-type"),
            QLatin1String("A \"type\" is unknown")),
    warning(Rule::UnknownWord, QLatin1String("unknown-word"), QLatin1String("A word is unknown")),
    warning(Rule::WrongCase, QLatin1String("wrong-case"),
            QLatin1String("A word has the wrong case")),
    warning(Rule::MissingKey, QLatin1String("missing-key"), QLatin1String("A key is missing")),
    warning(Rule::BadLength, QLatin1String("bad-length"), QLatin1String("A length cannot be read")),
    warning(Rule::BadColor, QLatin1String("bad-color"), QLatin1String("A colour cannot be read")),
    warning(Rule::ShortColor, QLatin1String("short-color"),
            QLatin1String("A colour is written in a short form")),
    warning(Rule::BadRatio, QLatin1String("bad-ratio"), QLatin1String("A ratio cannot be read")),
    warning(Rule::BadNumber, QLatin1String("bad-number"),
            QLatin1String("A number is changed to another one")),
    warning(Rule::NoEffect, QLatin1String("no-effect"), QLatin1String("A key has no effect")),
    warning(Rule::ActionWithoutType, QLatin1String("action-without-type"),
            QLatin1String("An action has no \"type\"")),
    warning(Rule::MobileOnlyAction, QLatin1String("mobile-only-action"),
            QLatin1String("An action works on mobile devices only")),
    warning(Rule::NoDefaultLanguage, QLatin1String("no-default-language"),
            QLatin1String("Other languages have no text")),
    warning(Rule::DataTwice, QLatin1String("data-twice"),
            QLatin1String("Two keys give the data of an action")),
    warning(Rule::NestedTooDeep, QLatin1String("nested-too-deep"),
            QLatin1String("Boxes are nested too deeply")),
    warning(Rule::OutsideBox, QLatin1String("outside-box"),
            QLatin1String("An item is partly outside its box")),
    warning(Rule::OutsideCard, QLatin1String("outside-card"),
            QLatin1String("An item is partly outside the card")),
    warning(Rule::TextCut, QLatin1String("text-cut"), QLatin1String("A text is cut")),
    warning(Rule::NoRoom, QLatin1String("no-room"), QLatin1String("A text has no room")),
    warning(Rule::NoSize, QLatin1String("no-size"), QLatin1String("An item has no size")),
    warning(Rule::Overlap, QLatin1String("overlap"), QLatin1String("Two items overlap")),
    warning(Rule::LowContrast, QLatin1String("low-contrast"),
            QLatin1String("A text is hard to read")),
    warning(Rule::MissingGlyph, QLatin1String("missing-glyph"),
            QLatin1String("The fonts lack a character")),
};

constexpr bool isInOrder()
{
    for (std::size_t i = 0; i < kRules.size(); ++i) {
        if (static_cast<std::size_t>(kRules[i].rule) != i)
            return false;
    }
    return true;
}

static_assert(isInOrder());

} // namespace

const std::array<RuleDescription, kRuleCount>& rules()
{
    return kRules;
}

const RuleDescription& description(Rule rule)
{
    return kRules.at(static_cast<std::size_t>(rule));
}

const RuleDescription* findRule(const QString& code)
{
    const auto* const found =
        std::find_if(kRules.begin(), kRules.end(),
                     [&code](const RuleDescription& each) { return each.code == code; });
    return found == kRules.end() ? nullptr : found;
}

} // namespace plix::tool
