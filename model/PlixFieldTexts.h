#pragma once

#include "model/PlixField.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The texts of an object's fields, in one block of memory that is as large as they
// are. A card gives few of the fields that its items have, and items that were built
// are kept for good: a field that is not set takes no memory.
class PlixFieldTexts {
public:
    // The text of a field; `otherwise` if it was never set. An empty text counts
    // as set.
    std::string Get(PlixField field, std::string_view otherwise = {}) const
    {
        return std::string(View(field, otherwise));
    }
    // The same without a copy. Valid until the next Set().
    std::string_view View(PlixField field, std::string_view otherwise = {}) const;

    // `text` must not be a view of this object.
    void Set(PlixField field, std::string_view text);

private:
    using Length = std::uint32_t;

    // Where the entry of the field begins; the end of the bytes if there is none.
    std::size_t Find(PlixField field) const;
    Length LengthAt(std::size_t entry) const;

    // An entry for each field that is set: the field, the length of its text, the
    // text.
    std::vector<char> bytes_;
};
