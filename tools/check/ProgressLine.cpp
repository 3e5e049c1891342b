#include "check/ProgressLine.h"

#include <cstdio>

#if defined(_WIN32)
#include <io.h>
#else
#include <unistd.h>
#endif

namespace plix::tool {
namespace {

// Writing to a terminal takes time.
constexpr int kStep = 16;

bool isTerminal()
{
#if defined(_WIN32)
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

} // namespace

ProgressLine::ProgressLine(int total)
    : total_(total)
    , isOnTerminal_(isTerminal())
{
}

ProgressLine::~ProgressLine()
{
    clear();
}

void ProgressLine::advance()
{
    ++done_;
    if (!isOnTerminal_ || (done_ % kStep != 0 && done_ != total_))
        return;
    std::fprintf(stderr, "\r[%d/%d] %d %%", done_, total_, 100 * done_ / total_);
    std::fflush(stderr);
    isShown_ = true;
}

void ProgressLine::clear()
{
    if (!isShown_)
        return;
    std::fputs("\r\x1B[K", stderr);
    std::fflush(stderr);
    isShown_ = false;
}

} // namespace plix::tool
