#pragma once

#include <exception>

namespace plix {

// Calls `body` and catches every exception. Returns whether there was none.
template <typename Body> bool CatchExceptions(Body body) noexcept
{
    try {
        body();
        return true;
    } catch (...) {
        return false;
    }
}

// The same. After an exception, calls `report` with its what(), or with "" if it is not a
// std::exception. A report that fails itself, such as for lack of memory, is left out.
template <typename Body, typename Report> bool CatchExceptions(Body body, Report report) noexcept
{
    try {
        body();
        return true;
    } catch (const std::exception& error) {
        CatchExceptions([&] { report(error.what()); });
    } catch (...) {
        CatchExceptions([&] { report(""); });
    }
    return false;
}

} // namespace plix
