#include "check/JsonNode.h"

#include <algorithm>

namespace plix::tool {

const JsonMember* JsonNode::find(std::string_view name) const
{
    const auto found = std::find_if(members.rbegin(), members.rend(),
                                    [name](const JsonMember& each) { return each.name == name; });
    return found == members.rend() ? nullptr : &*found;
}

} // namespace plix::tool
