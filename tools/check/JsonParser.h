#pragma once

#include "check/Finding.h"
#include "check/JsonNode.h"

#include <QByteArray>

#include <optional>
#include <string>

namespace plix::tool {

// Reads a JSON text, and notes what is wrong with it. Reads on after slips such as a
// comma too many, so that one slip does not hide the others. Allows comments.
class JsonParser {
public:
    // The library's own limit.
    static constexpr int kMaximumDepth = 1000;

    JsonParser(const QByteArray& text, Findings& findings);

    // Null if an error makes the rest unreadable.
    std::optional<JsonNode> parse();

private:
    struct Stop { }; // thrown at an error that makes the rest unreadable

    JsonNode value();
    JsonNode object();
    JsonNode array();
    JsonNode string();
    JsonNode number();
    JsonNode word();
    JsonMember member();

    // After a value: whether another one follows before `closing`, which is skipped.
    bool nextFollows(char closing);
    bool startsValue() const;
    void checkNames(JsonNode& object);
    void checkUtf8();

    std::string stringText();
    void escape(std::string& text);
    char32_t unicodeEscape();
    std::optional<char32_t> hexDigits();
    void skipDigits();

    void skipBlanksAndComments();
    char current() const { return atEnd() ? '\0' : text_.at(offset_); }
    bool atEnd() const { return offset_ >= text_.size(); }
    bool skip(char c);

    void note(Rule rule, TextRange range, const QString& message);
    [[noreturn]] void stop(TextRange range, const QString& message);
    [[noreturn]] void stopHere(const QString& needed);

    const QByteArray& text_;
    Findings& findings_;
    int offset_ = 0;
    int depth_ = 0;
};

} // namespace plix::tool
