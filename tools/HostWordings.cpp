#include "HostWordings.h"

#include <plix/Plix.h>

#include <string>

namespace plix::tool {
namespace {

// Global, since the callback has no user data.
QMap<QString, QString> currentWordings;

std::string PLIX_CALL wording(const char* key)
{
    return currentWordings.value(QString::fromUtf8(key)).toStdString();
}

} // namespace

HostWordings::HostWordings(const QMap<QString, QString>& wordings)
{
    currentWordings = wordings;
    Plix_SetMultiLangGetCallback(&wording);
}

HostWordings::~HostWordings()
{
    Plix_SetMultiLangGetCallback(nullptr);
}

} // namespace plix::tool
