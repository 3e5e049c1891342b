#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plix::tool {

struct JsonMember;

// A part of a text, in bytes.
struct TextRange {
    int begin = 0;
    int end = 0;
};

// A value of a JSON text, and where it stands.
struct JsonNode {
    enum class Kind { Null, Boolean, Number, String, Array, Object };

    Kind kind = Kind::Null;
    TextRange range;
    bool boolean = false;
    double number = 0;
    std::string text; // of a string, in UTF-8
    std::vector<JsonNode> elements; // of an array
    // Of an object, in the order of the text. A name may be there more than once.
    std::vector<JsonMember> members;

    bool isString() const { return kind == Kind::String; }
    bool isArray() const { return kind == Kind::Array; }
    bool isObject() const { return kind == Kind::Object; }

    // The last member of this name, which is the one that counts; null if there is none.
    const JsonMember* find(std::string_view name) const;
};

struct JsonMember {
    std::string name;
    TextRange nameRange;
    // By a later member of the same name, which is the one that counts.
    bool isReplaced = false;
    JsonNode value;
};

} // namespace plix::tool
