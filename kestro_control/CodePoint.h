#pragma once

#include <QString>

namespace kestro {

// The code point that begins at `at`. A surrogate without its other half is one of
// its own.
uint CodePointAt(const QString& text, int at);

} // namespace kestro
