#pragma once

#include "kestro_control/KestroControlExport.h"

namespace kestro {

// What all texts of the process have cost so far, for tests. Counts say what clocks
// cannot: whether something was done twice.
struct TextWork {
    // Text documents made.
    int documents = 0;
    // Paragraphs shaped, which means turned into glyphs, outside of documents.
    int shapings = 0;
    // Paragraphs broken into lines outside of documents.
    int lineBreakings = 0;
};

KESTRO_CONTROL_API TextWork& WorkSoFar();

} // namespace kestro
