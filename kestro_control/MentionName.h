#pragma once

#include <QString>

namespace kestro {

// Users choose the names of mentions. A name must not change the order of the text beside
// it, or a user could change what others seem to write.

// The name without characters that set a direction.
QString WithoutDirections(const QString& name);

// The name in an isolate if it has letters that are read from right to left.
QString Isolated(const QString& name);

} // namespace kestro
