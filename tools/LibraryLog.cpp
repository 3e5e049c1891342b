#include "LibraryLog.h"

#include "Console.h"

#include <plix/Plix.h>

namespace plix::tool {
namespace {

// Global, since the callback has no user data.
QString currentPath;

void PLIX_CALL warn(const char* text)
{
    console::warn(currentPath, QString::fromUtf8(text).trimmed());
}

} // namespace

LibraryLog::LibraryLog(const QString& path)
{
    currentPath = path;
    Plix_SetWiteLogCallback(&warn);
}

LibraryLog::~LibraryLog()
{
    Plix_SetWiteLogCallback(nullptr);
}

} // namespace plix::tool
