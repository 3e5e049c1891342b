#pragma once

#include <QString>

#include <functional>

namespace plix::tool {

// Passes the library's log lines to a function during its lifetime. The callback is
// process-wide, so only one of these may exist at a time.
class LibraryLog {
public:
    using Receiver = std::function<void(const QString& line)>;

    explicit LibraryLog(Receiver receiver);
    ~LibraryLog();
    LibraryLog(const LibraryLog&) = delete;
    LibraryLog& operator=(const LibraryLog&) = delete;
};

} // namespace plix::tool
