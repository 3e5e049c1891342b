#pragma once

#include <QString>

namespace plix::tool {

// Shows the library's log lines as warnings about one card, for as long as it
// lives. There is one log for the whole library, so there is one of these at a
// time.
class LibraryLog {
public:
    explicit LibraryLog(const QString& path);
    ~LibraryLog();
    LibraryLog(const LibraryLog&) = delete;
    LibraryLog& operator=(const LibraryLog&) = delete;
};

} // namespace plix::tool
