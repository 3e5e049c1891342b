#include "check/Rule.h"

#include <QLatin1String>

#include <algorithm>
#include <cstddef>

namespace plix::tool {
namespace {

constexpr RuleDescription error(Rule rule, const char* code, const char* title)
{
    return {rule, code, Severity::Error, title};
}

constexpr RuleDescription warning(Rule rule, const char* code, const char* title)
{
    return {rule, code, Severity::Warning, title};
}

// In the order of Rule.
constexpr std::array<RuleDescription, kRuleCount> kRules {
    error(Rule::Syntax, "syntax", "The text is not JSON"),
    error(Rule::TextAfterCard, "text-after-card", "Text follows the card"),
    error(Rule::DuplicateKey, "duplicate-key", "A key is there twice"),
    error(Rule::LoneSurrogate, "lone-surrogate", "Half of a character"),
    error(Rule::InvalidUtf8, "invalid-utf8", "Bytes are not UTF-8"),
    error(Rule::NotACard, "not-a-card", "The JSON is not a card"),
    error(Rule::WrongKind, "wrong-kind", "A value is of the wrong kind"),
    error(Rule::TooLarge, "too-large", "The JSON has too many bytes"),
    error(Rule::TooManyItems, "too-many-items", "The card has too many items"),
    warning(Rule::ConvertedKind, "converted-kind", "A value of another kind is converted"),
    warning(Rule::UnknownKey, "unknown-key", "A key is unknown"),
    warning(Rule::UnknownType, "unknown-type", "A \"type\" is unknown"),
    warning(Rule::UnknownWord, "unknown-word", "A word is unknown"),
    warning(Rule::WrongCase, "wrong-case", "A word has the wrong case"),
    warning(Rule::MissingKey, "missing-key", "A key is missing"),
    warning(Rule::BadLength, "bad-length", "A length cannot be read"),
    warning(Rule::BadColor, "bad-color", "A colour cannot be read"),
    warning(Rule::ShortColor, "short-color", "A colour is written in a short form"),
    warning(Rule::BadRatio, "bad-ratio", "A ratio cannot be read"),
    warning(Rule::BadNumber, "bad-number", "A number is changed to another one"),
    warning(Rule::NoEffect, "no-effect", "A key has no effect"),
    warning(Rule::ActionWithoutType, "action-without-type", "An action has no \"type\""),
    warning(Rule::MobileOnlyAction, "mobile-only-action", "An action works on mobile devices only"),
    warning(Rule::NoDefaultLanguage, "no-default-language", "Other languages have no text"),
    warning(Rule::DataTwice, "data-twice", "Two keys give the data of an action"),
    warning(Rule::NestedTooDeep, "nested-too-deep", "Boxes are nested too deeply"),
    warning(Rule::OutsideBox, "outside-box", "An item is partly outside its box"),
    warning(Rule::OutsideCard, "outside-card", "An item is partly outside the card"),
    warning(Rule::TextCut, "text-cut", "A text is cut"),
    warning(Rule::WordSplit, "word-split", "A word is split"),
    warning(Rule::NoRoom, "no-room", "A text has no room"),
    warning(Rule::NoSize, "no-size", "An item has no size"),
    warning(Rule::Overlap, "overlap", "Two items overlap"),
    warning(Rule::LowContrast, "low-contrast", "A text is hard to read"),
    warning(Rule::MissingGlyph, "missing-glyph", "The fonts lack a character"),
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
        std::find_if(kRules.begin(), kRules.end(), [&code](const RuleDescription& each) {
            return code == QLatin1String(each.code);
        });
    return found == kRules.end() ? nullptr : found;
}

} // namespace plix::tool
