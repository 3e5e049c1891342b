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
    // Characters that were searched for places where a line can break, to find how much of
    // a text is shown.
    int searchedCharacters = 0;
    // Characters that were shaped: those of paragraphs, and of lines that were tried with
    // an ellipsis.
    int shapedCharacters = 0;

    // What was done between two moments.
    friend TextWork operator-(const TextWork& after, const TextWork& before)
    {
        return {after.documents - before.documents, after.shapings - before.shapings,
                after.lineBreakings - before.lineBreakings,
                after.searchedCharacters - before.searchedCharacters,
                after.shapedCharacters - before.shapedCharacters};
    }
};

KESTRO_CONTROL_API TextWork& WorkSoFar();

} // namespace kestro
