#pragma once

class QString;

// Writes lines to standard output and standard error, in UTF-8 in every locale.
namespace plix::tool::console {

// Call this first. Makes lines end in the same way on every system.
void setUp();

void print(const QString& line);
void printError(const QString& line);

// Prints a warning about a file that is used nevertheless.
void warn(const QString& path, const QString& text);

} // namespace plix::tool::console
