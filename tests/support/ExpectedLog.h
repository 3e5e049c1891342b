#pragma once

#include <string>

// What a test allows to be said.
//
// The test host collects every line of the library's log and every Qt message
// of warning level or above, and fails the running test for each one that the
// test did not take or allow. Tests that provoke lines fetch them here.
namespace plix::test {

// The oldest collected log line that was not taken yet, which is taken; an
// empty string when there is none.
std::string takeLogLine();

// How many log lines wait to be taken.
int pendingLogLines();

// Throws away what was logged so far in this test: for tests about something
// else than the lines, such as floods of hostile input.
void ignoreLog();

// Appends to the log as the library would.
void collectLogLine(const char* text);

} // namespace plix::test
