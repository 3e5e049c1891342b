#pragma once

#include <string>

// The log lines that a test expects.
//
// The test host collects every line of the library's log and every Qt message of warning
// level or above. It fails the running test for each of them that is left at its end.
// Tests that provoke lines take them here.
namespace plix::test {

// Removes the oldest collected log line and returns it; returns an empty string when there
// is none.
std::string takeLogLine();

// The number of log lines that are not taken yet.
int pendingLogLines();

// Removes all lines that were logged so far in this test. For tests that do not check
// lines, such as those of random input.
void ignoreLog();

// Adds a line, as the library does.
void collectLogLine(const char* text);

} // namespace plix::test
