#include "check/KeyNotes.h"

#include "check/CardItem.h"
#include "check/Excerpt.h"

namespace plix::tool {

KeyNotes::KeyNotes(const JsonNode& object, const QString& path, Findings& findings)
    : object_(object)
    , path_(path)
    , findings_(findings)
{
}

void KeyNotes::note(Rule rule, std::string_view key, const QString& message, const QString& mend)
{
    if (const JsonMember* const member = object_.find(key))
        findings_.push_back({rule,
                             {member->nameRange.begin, member->value.range.end},
                             memberPath(path_, key),
                             message,
                             mend,
                             {},
                             {}});
}

void KeyNotes::noEffect(std::string_view key, const QString& reason, const QString& mend)
{
    note(Rule::NoEffect, key, QStringLiteral("%1 has no effect: %2").arg(quoted(key), reason),
         mend);
}

void KeyNotes::noteObject(Rule rule, const QString& message, const QString& mend)
{
    // The whole object would be a long range.
    const int begin = object_.range.begin;
    findings_.push_back({rule, {begin, begin + 1}, path_, message, mend, {}, {}});
}

void KeyNotes::checkLanguages(std::string_view variants, std::string_view plain)
{
    const JsonMember* const member = object_.find(variants);
    if (!hasVariants(object_, variants) || member->value.find("default")
        || isFilled(object_.find(plain)))
        return;
    note(Rule::NoDefaultLanguage, variants,
         QStringLiteral("readers of other languages see nothing: there is neither "
                        "\"default\" nor %1")
             .arg(quoted(plain)),
         QStringLiteral("\"default\""));
}

bool isFilled(const JsonMember* member)
{
    return member && !member->value.text.empty();
}

bool hasVariants(const JsonNode& object, std::string_view key)
{
    const JsonMember* const member = object.find(key);
    return member && !member->value.members.empty();
}

} // namespace plix::tool
