#pragma once

#include <QString>

#include <array>

namespace plix::tool {

enum class Severity { Warning, Error };

// What a card can have wrong. The names and the meaning of the codes are for good:
// scripts allow findings by their code.
enum class Rule {
    // Errors: a part of the card is lost.
    Syntax,
    TextAfterCard,
    DuplicateKey,
    LoneSurrogate,
    InvalidUtf8,
    NotACard,
    WrongKind,
    TooLarge,
    TooManyItems,
    // Warnings: something has another effect than its author may think.
    ConvertedKind,
    UnknownKey,
    UnknownType,
    UnknownWord,
    WrongCase,
    MissingKey,
    BadLength,
    BadColor,
    ShortColor,
    BadRatio,
    BadNumber,
    NoEffect,
    ActionWithoutType,
    MobileOnlyAction,
    NoDefaultLanguage,
    DataTwice,
    NestedTooDeep,
    // Looks: warnings about what the card shows.
    OutsideBox,
    OutsideCard,
    TextCut,
    WordSplit,
    NoRoom,
    NoSize,
    Overlap,
    LowContrast,
    MissingGlyph,
};

struct RuleDescription {
    Rule rule;
    const char* code;
    Severity severity;
    const char* title;
};

constexpr int kRuleCount = static_cast<int>(Rule::MissingGlyph) + 1;

const std::array<RuleDescription, kRuleCount>& rules();

const RuleDescription& description(Rule rule);

// Null if there is no such code.
const RuleDescription* findRule(const QString& code);

} // namespace plix::tool
