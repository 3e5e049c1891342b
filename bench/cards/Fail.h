#pragma once

class QString;

namespace bench {

// Says why, and ends the program: numbers that are wrong are worse than none.
[[noreturn]] void fail(const QString& reason);

} // namespace bench
