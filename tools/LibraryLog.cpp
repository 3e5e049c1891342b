#include "LibraryLog.h"

#include <plix/Plix.h>

#include <utility>

namespace plix::tool {
namespace {

// Global, since the callback has no user data.
LibraryLog::Receiver currentReceiver;

void PLIX_CALL receive(const char* text)
{
    currentReceiver(QString::fromUtf8(text).trimmed());
}

} // namespace

LibraryLog::LibraryLog(Receiver receiver)
{
    currentReceiver = std::move(receiver);
    Plix_SetWiteLogCallback(&receive);
}

LibraryLog::~LibraryLog()
{
    Plix_SetWiteLogCallback(nullptr);
    currentReceiver = nullptr;
}

} // namespace plix::tool
