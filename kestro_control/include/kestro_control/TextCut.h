#pragma once

#include "kestro_control/KestroControlExport.h"

#include <QString>

namespace kestro {

// The start of a text that may be shown, for texts that no TextItem shows.
struct TextCut {
    // In UTF-16 code units.
    int length = 0;
    // What it costs, as TextItem::Cost().
    int cost = 0;
    // Whether it is shorter than the text because of the maximum cost.
    bool exceedsMaximum = false;
};

// Cuts `text` as a TextItem with that maximum cost does. Any thread.
KESTRO_CONTROL_API TextCut CutText(const QString& text, int maximumCost);

} // namespace kestro
