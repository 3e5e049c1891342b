#pragma once

#include "Options.h"

#include <QString>

namespace plix::tool {

// The arguments of "plix view".
struct ViewOptions {
    // A card or a folder of cards; empty if the window shall begin with a new card.
    QString input;
    CardOptions card;
};

} // namespace plix::tool
