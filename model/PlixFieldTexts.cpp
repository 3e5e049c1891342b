#include "model/PlixFieldTexts.h"

#include <cstring>

namespace {

constexpr std::size_t kLengthOffset = sizeof(PlixField);
constexpr std::size_t kTextOffset = kLengthOffset + sizeof(std::uint32_t);

} // namespace

std::string_view PlixFieldTexts::View(PlixField field, std::string_view otherwise) const
{
    const std::size_t entry = Find(field);
    if (entry == bytes_.size())
        return otherwise;
    return {bytes_.data() + entry + kTextOffset, LengthAt(entry)};
}

void PlixFieldTexts::Set(PlixField field, std::string_view text)
{
    if (const std::size_t entry = Find(field); entry != bytes_.size()) {
        const auto begin = bytes_.begin() + static_cast<std::ptrdiff_t>(entry);
        bytes_.erase(begin, begin + static_cast<std::ptrdiff_t>(kTextOffset + LengthAt(entry)));
    }
    const std::size_t entry = bytes_.size();
    const auto length = static_cast<Length>(text.size());
    // A vector that grows on its own reserves up to twice of what it needs.
    bytes_.reserve(entry + kTextOffset + text.size());
    bytes_.push_back(static_cast<char>(field));
    bytes_.resize(entry + kTextOffset);
    std::memcpy(bytes_.data() + entry + kLengthOffset, &length, sizeof(length));
    bytes_.insert(bytes_.end(), text.begin(), text.end());
}

std::size_t PlixFieldTexts::Find(PlixField field) const
{
    std::size_t entry = 0;
    while (entry < bytes_.size() && bytes_[entry] != static_cast<char>(field))
        entry += kTextOffset + LengthAt(entry);
    return entry;
}

PlixFieldTexts::Length PlixFieldTexts::LengthAt(std::size_t entry) const
{
    Length length = 0;
    std::memcpy(&length, bytes_.data() + entry + kLengthOffset, sizeof(length));
    return length;
}
