#pragma once

#include "check/JsonNode.h"
#include "check/JsonScanner.h"

#include <QByteArray>

#include <optional>

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
    void checkUtf8();
    JsonNode value();
    JsonNode object();
    JsonNode array();
    JsonNode string();
    JsonNode number();
    JsonNode word();
    JsonMember member();

    JsonNode begin(JsonNode::Kind kind) const;
    // Into an object or array at its bracket, and out of it behind the other one.
    void enter();
    void leave(JsonNode& node);
    // After a value: whether another one follows before `closing`, which is skipped.
    bool nextFollows(char closing);
    bool startsValue() const;
    void skipDigits();
    void checkNames(JsonNode& object);

    const QByteArray& text_;
    JsonScanner scanner_;
    int depth_ = 0;
};

} // namespace plix::tool
