#pragma once

class QString;

// Standard output and error, one line at a time and in UTF-8 whatever the
// locale says.
namespace plix::tool::console {

// Lines end the same way on every system. To be called first.
void setUp();

void print(const QString& line);
void printError(const QString& line);

// About a file that is used all the same.
void warn(const QString& path, const QString& text);

} // namespace plix::tool::console
