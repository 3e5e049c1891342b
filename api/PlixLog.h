#pragma once

#include <exception>
#include <string>

// Sends the one line that an operation owes its catch to the host's log:
// "call " + operation + " failed. " + the exception's text, as valid UTF-8.
void LogFailure(const std::string& operation, const std::exception& error);

// The same with a line beginning of the caller's own.
void LogFailureLine(const std::string& prefix, const std::exception& error);
