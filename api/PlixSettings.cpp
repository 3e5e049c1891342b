#include "api/PlixSettings.h"

PlixSettings& PlixSettings::GetInstance()
{
    static PlixSettings instance;
    return instance;
}

void PlixSettings::SetMultiLangGetCallback(PlixMultiLangCallback callback)
{
    multiLangCallback_ = callback;
}

void PlixSettings::SetWiteLogCallback(PlixLogCallback callback)
{
    logCallback_ = callback;
}

void PlixSettings::WriteLog(const char* text) const noexcept
{
    if (!logCallback_)
        return;
    try {
        logCallback_(text);
    } catch (...) { // NOLINT(bugprone-empty-catch): there is nobody left to tell
    }
}

std::string PlixSettings::GetMultiLangText(const std::string& key) const
{
    return multiLangCallback_ ? multiLangCallback_(key.c_str()) : std::string();
}
