#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"

#include <QString>

#include <string_view>

namespace plix::tool {

// Notes what is wrong with the keys of an object.
class KeyNotes {
public:
    // All must outlive this.
    KeyNotes(const JsonNode& object, const QString& path, Findings& findings);

    // Does nothing if the key is not there.
    void note(Rule rule, std::string_view key, const QString& message, const QString& mend = {});
    void noEffect(std::string_view key, const QString& reason, const QString& mend = {});
    // About the object as a whole.
    void noteObject(Rule rule, const QString& message, const QString& mend);

    // Some readers see nothing if neither a default nor the plain text is there.
    void checkLanguages(std::string_view variants, std::string_view plain);

private:
    const JsonNode& object_;
    const QString& path_;
    Findings& findings_;
};

// Whether the member is there, and has a text.
bool isFilled(const JsonMember* member);

// Whether a key has texts for languages.
bool hasVariants(const JsonNode& object, std::string_view key);

} // namespace plix::tool
