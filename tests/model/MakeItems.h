#pragma once

#include "model/PlixDataBox.h"
#include "model/PlixDataBubble.h"
#include "model/PlixDataContainer.h"
#include "model/PlixDataItemCreater.h"
#include "model/PlixItemKind.h"

#include <memory>

namespace plix::test {

// A bubble with four empty zones.
inline std::shared_ptr<PlixDataBubble> makeBubble()
{
    auto bubble = std::make_shared<PlixDataBubble>();
    bubble->InitZones();
    return bubble;
}

// Appends an empty box.
inline std::shared_ptr<PlixDataBox> addBox(PlixDataContainer& container)
{
    const auto box =
        std::dynamic_pointer_cast<PlixDataBox>(PlixDataItemCreater().Create(PlixKindBox));
    container.AddChild(box);
    return box;
}

} // namespace plix::test
