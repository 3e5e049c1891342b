#pragma once

#include <string>

namespace plix {

// Writes one line to the host's log: "call " + operation + " failed. " + `reason`.
// `reason` is the text of an exception; null counts as empty. Whatever it contains,
// the result is one line of valid UTF-8 with a maximum length.
void LogFailure(const std::string& operation, const char* reason);

// The line for a failure while a card is built: a report for CatchExceptions().
void LogFailedBuild(const char* reason);

// Like LogFailure(), but the line begins with `prefix`.
void LogFailureLine(const std::string& prefix, const char* reason);

} // namespace plix
