#pragma once

#include "model/format/PlixFormatKey.h"

#include <span>
#include <string_view>

// A component, or a part of one that is an object.
struct PlixFormatComponent {
    // The word of its "type"; empty for parts that have none.
    std::string_view type;
    // One line for authors of cards.
    std::string_view description;
    // In the order in which they are read.
    std::span<const PlixFormatKey> keys;
};

// The card format as data, for tools. It is made from the tables by which the reader
// reads, so it cannot differ from them. It needs none of the library's functions.
namespace plix {

// The root of a card.
const PlixFormatComponent& BubbleFormat();

// The components of boxes and zones.
std::span<const PlixFormatComponent> ComponentFormats();

// What an object of this part consists of. Has no keys for None, Component, Texts
// and Variants.
const PlixFormatComponent& PartFormat(PlixFormatPart part);

// The component of this "type", other than a bubble; null if there is none.
const PlixFormatComponent* FindComponentFormat(std::string_view type);

// The key of this name; null if there is none.
const PlixFormatKey* FindKeyFormat(const PlixFormatComponent& component, std::string_view name);

// The bounds of a card: the bytes of its JSON, its items, and the depth of nested boxes in
// a zone.
int MaximumMessageBytes();
int MaximumItems();
int MaximumNestedBoxes();

// Whether what goes wrong in a part stays there. If not, what contains it is not read
// further.
bool IsReadByItself(PlixFormatPart part);

} // namespace plix
