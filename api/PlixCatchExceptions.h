#pragma once

#include <exception>

namespace plix {

// Calls `body` and catches every exception. After an exception, calls `report`
// with its what(), or with "" if it is not a std::exception. Returns whether
// `body` ended without an exception.
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
