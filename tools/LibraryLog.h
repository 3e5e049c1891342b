#pragma once

#include <QString>

namespace plix::tool {

// Prints the library's log lines as warnings about one card during its lifetime.
// The callback is process-wide, so only one of these may exist at a time.
class LibraryLog {
public:
    explicit LibraryLog(const QString& path);
    ~LibraryLog();
    LibraryLog(const LibraryLog&) = delete;
    LibraryLog& operator=(const LibraryLog&) = delete;
};

} // namespace plix::tool
