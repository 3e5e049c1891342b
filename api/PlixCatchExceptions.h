#pragma once

#include <exception>

namespace plix {

// Runs `body`, whose exceptions of whatever type end here: `report` is called
// with what the exception says, which is "" when it is no std::exception.
// Answers whether `body` came to its end.
template <typename Body, typename Report> bool CatchExceptions(Body body, Report report)
{
    try {
        body();
        return true;
    } catch (const std::exception& error) {
        report(error.what());
    } catch (...) {
        report("");
    }
    return false;
}

// The same without a report.
template <typename Body> bool CatchExceptions(Body body) noexcept
{
    return CatchExceptions(body, [](const char*) {});
}

} // namespace plix
