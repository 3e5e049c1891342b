#pragma once

#include <string>

namespace plix {

// Sends the one line that an operation owes its catch to the host's log:
// "call " + operation + " failed. " + `reason`, the exception's text, as valid
// UTF-8. Of whatever a host or a card has put into the reason it stays one line,
// of bounded length. Null is an empty reason.
void LogFailure(const std::string& operation, const char* reason);

// The line of a build, or of a piece of one: a report for CatchExceptions().
void LogFailedBuild(const char* reason);

// LogFailure() with a line beginning of the caller's own.
void LogFailureLine(const std::string& prefix, const char* reason);

} // namespace plix
